// The program as the host: settings, table, and the answers of its callbacks.

#include "c_interface/calls/guarded_call.h"
#include "c_interface/host/answers.h"
#include "c_interface/host/catalogue.h"
#include "c_interface/host/host_table.h"
#include "c_interface/records/records.h"
#include "c_interface/records/sized_record.h"
#include "c_interface/records/texts.h"
#include "uikit/owner_window.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <optional>
#include <utility>

using namespace c_interface;

namespace {

int KnownSetting(bool isKnown, int setting)
{
    if (!isKnown) {
        throw CCallFault(RADSEL_BAD_ARGUMENT,
                         "There is no setting " + std::to_string(setting) + ".");
    }
    return RADSEL_OK;
}

/// The place of the element of that name, which is made at the end if there is none.
template <class Element>
std::size_t Continue(std::vector<Element>& elements, const CString& name)
{
    const auto found = std::ranges::find(elements, name, &Element::strName);
    const auto place = static_cast<std::size_t>(found - elements.begin());
    if (found == elements.end()) {
        elements.emplace_back().strName = name;
    }
    return place;
}

} // namespace

int radsel_set_text(int setting, const char* text)
{
    return Guarded([&] {
        const auto value = text == nullptr ? std::nullopt : std::optional(ReadText(text));
        return KnownSetting(SetText(setting, value), setting);
    });
}

int radsel_set_number(int setting, int value)
{
    return Guarded([&] { return KnownSetting(SetNumber(setting, value), setting); });
}

int radsel_reset_number(int setting)
{
    return Guarded([&] { return KnownSetting(SetNumber(setting, std::nullopt), setting); });
}

void radsel_set_parent_window(uint64_t window)
{
    SetOwnerWindow(window);
}

int radsel_set_host(const radsel_host* host)
{
    return Guarded([&] {
        if (IsNested()) {
            throw CCallFault(RADSEL_BAD_ARGUMENT, "The host cannot change while a call runs.");
        }
        SetHost(host);
        ForgetCatalogues();
        return RADSEL_OK;
    });
}

int radsel_host_failure(const char* text, const char* file, int line)
{
    try {
        // Taken before anything else, as the texts may be those of radsel_last_error().
        CReason reason{text == nullptr ? "" : text, file == nullptr ? "" : file, line};
        Guarded([&] {
            NoteFailure(std::move(reason));
            return RADSEL_OK;
        });
    } catch (const std::bad_alloc&) {
        // The failure then has no words.
    }
    return RADSEL_HOST_FAILED;
}

int radsel_names_add(radsel_names* names, const char* name)
{
    return Guarded([&] {
        Require(names, "names");
        names->texts.push_back(ReadText(name));
        return RADSEL_OK;
    });
}

int radsel_bytes_add(radsel_bytes* bytes, const void* data, size_t count)
{
    return Guarded([&] {
        Require(bytes, "bytes");
        if (count != 0) {
            Require(data, "data");
            const auto* const first = static_cast<const std::uint8_t*>(data);
            bytes->bytes.insert(bytes->bytes.end(), first, first + count);
        }
        return RADSEL_OK;
    });
}

int radsel_picture_set(radsel_picture* picture, int width, int height, const unsigned char* rgba)
{
    return Guarded([&] {
        Require(picture, "picture");
        Require(rgba, "rgba");
        constexpr int kLargestSide = 32767;
        if (width < 1 || height < 1 || width > kLargestSide || height > kLargestSide) {
            throw CCallFault(RADSEL_BAD_ARGUMENT, "A picture has sides of 1 to 32767 pixels.");
        }
        CBitmap bitmap(width, height);
        std::copy_n(rgba, static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4,
                    bitmap.GetData());
        picture->bitmap = std::move(bitmap);
        return RADSEL_OK;
    });
}

int radsel_catalogue_add_kind(radsel_catalogue* catalogue, const char* name)
{
    return Guarded([&] {
        Require(catalogue, "catalogue");
        catalogue->kind = Continue(catalogue->kinds, ReadText(name));
        const std::size_t count = catalogue->kinds[catalogue->kind].produkte.size();
        catalogue->product = count - (count != 0 ? 1 : 0);
        return RADSEL_OK;
    });
}

int radsel_catalogue_add_product(radsel_catalogue* catalogue, const char* name)
{
    return Guarded([&] {
        Require(catalogue, "catalogue");
        if (catalogue->kinds.empty()) {
            throw CCallFault(RADSEL_BAD_ARGUMENT, "A product is added before its kind.");
        }
        catalogue->product = Continue(catalogue->kinds[catalogue->kind].produkte, ReadText(name));
        return RADSEL_OK;
    });
}

int radsel_catalogue_add_row(radsel_catalogue* catalogue, const radsel_row* row)
{
    return Guarded([&] {
        Require(catalogue, "catalogue");
        if (catalogue->kinds.empty() || catalogue->kinds[catalogue->kind].produkte.empty()) {
            throw CCallFault(RADSEL_BAD_ARGUMENT, "A row is added before its product.");
        }
        HK_VDI3805_TYP typ;
        FromC(Load(row, DefaultRow()), typ);
        const HK_DATEN_VDI3805& daten = typ.Daten;
        for (const double number : {daten.Hoehe, daten.Tiefe, daten.Laenge, daten.LeistungEN442,
                                    daten.Elemente, daten.Exponent, daten.Inhalt}) {
            if (!std::isfinite(number)) {
                throw CCallFault(RADSEL_BAD_ARGUMENT, "A number of the row is not finite.");
            }
        }
        reference_host::CBuiltProduct& produkt =
            catalogue->kinds[catalogue->kind].produkte[catalogue->product];
        produkt.hoehen.insert(daten.Hoehe);
        produkt.tiefen.insert(daten.Tiefe);
        produkt.rows.push_back(typ);
        return RADSEL_OK;
    });
}
