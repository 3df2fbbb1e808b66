// Radiators: the seven functions of the module, and what they work on.

#include "c_interface/calls/guarded_call.h"
#include "c_interface/calls/request.h"
#include "c_interface/host/drawer.h"
#include "c_interface/records/records.h"
#include "c_interface/records/sized_record.h"
#include "c_interface/records/texts.h"
#include "frame/entry_points.h"
#include "radiator/output_conversion.h"

#include <algorithm>
#include <memory>
#include <vector>

using namespace c_interface;

namespace {

constexpr int kMostRows = 2000;

/// As many sizes as there are places; `count` becomes how many there are.
void GiveSizes(const OCArray<double>& sizes, double* places, std::size_t& count)
{
    const auto all = static_cast<std::size_t>(sizes.GetSize());
    std::copy_n(sizes.GetData(), std::min(count, all), places);
    count = all;
}

void RequirePlaces(const double* places, const std::size_t* count, const char* name)
{
    Require(count, "count");
    if (*count != 0) {
        Require(places, name);
    }
}

/// One of the questions that are answered by a number.
int AskDouble(radsel_request* request, double* answer, double nothing,
              const std::function<double(HK_DATEN_VDI3805_UEBERGABE&)>& question)
{
    return Guarded([&] {
        Require(answer, "answer");
        *answer = nothing;
        CRequest call(request);
        const double found = question(call.Data());
        return call.Finish(
            found == nothing ? RADSEL_NOTHING : RADSEL_OK, [&] { *answer = found; },
            "The row or product is there, but states none.");
    });
}

} // namespace

int radsel_find_radiator(radsel_request* request)
{
    return Guarded([&] {
        CRequest call(request);
        CString layer;
        int color = 0;
        return call.Finish(
            HeizkoerperauswahlVDI3805(nullptr, &call.Data(), layer, color, false, false));
    });
}

int radsel_choose_radiator(radsel_request* request, radsel_layer* layer,
                           const radsel_drawing* drawing, int warnAndWiden)
{
    return Guarded([&] {
        CRequest call(request);
        radsel_layer record = layer == nullptr ? DefaultLayer() : Load(layer, DefaultLayer());
        std::unique_ptr<CCallbackDrawer> drawer;
        if (drawing != nullptr) {
            drawer = std::make_unique<CCallbackDrawer>(Load(drawing, radsel_drawing{}));
        }
        CString name = ReadField(record.name);
        const int result = HeizkoerperauswahlVDI3805(drawer.get(), &call.Data(), name, record.color,
                                                     true, warnAndWiden != 0);
        WriteField(record.name, name);
        return call.Finish(result, [&] {
            if (layer != nullptr) {
                Store(layer, record);
            }
        });
    });
}

int radsel_choose_product(radsel_request* request)
{
    return Guarded([&] {
        CRequest call(request);
        const int result = HeizkoerperauswahlVDI3805Tree(&call.Data());
        return call.Finish(result == 0 ? RADSEL_OK : RADSEL_CANCELLED);
    });
}

int radsel_product_sizes(radsel_request* request, double* heights, size_t* heightCount,
                         double* depths, size_t* depthCount)
{
    return Guarded([&] {
        RequirePlaces(heights, heightCount, "heights");
        RequirePlaces(depths, depthCount, "depths");
        CRequest call(request);
        OCArray<double> hoehen;
        OCArray<double> tiefen;
        Read_HK_Masse(call.Data(), hoehen, tiefen);
        const bool isEmpty = hoehen.IsEmpty() && tiefen.IsEmpty();
        return call.Finish(
            isEmpty ? RADSEL_NOTHING : RADSEL_OK,
            [&] {
                GiveSizes(hoehen, heights, *heightCount);
                GiveSizes(tiefen, depths, *depthCount);
            },
            "The product has rows, but states no sizes.");
    });
}

int radsel_row_sizes(radsel_request* request, short* heights, short* depths, short* lengths,
                     double* waters, int capacity, radsel_row* firstRow)
{
    return Guarded([&] {
        Require(heights, "heights");
        Require(depths, "depths");
        Require(lengths, "lengths");
        Require(waters, "waters");
        if (capacity < 0 || capacity > kMostRows) {
            throw CCallFault(RADSEL_BAD_ARGUMENT, "The capacity is not within 0 to 2000.");
        }
        CRequest call(request);
        const auto places = static_cast<std::size_t>(capacity);
        // The module needs one place more than it fills.
        std::vector<short> hoehen(places + 1);
        std::vector<short> tiefen(places + 1);
        std::vector<short> laengen(places + 1);
        // Of a product without rows the module leaves the first row alone, which tells them apart.
        call.Data().Typ.Daten.Laenge = -1.0;
        Read_HK_Masse(call.Data(), hoehen.data(), tiefen.data(), laengen.data(), waters, capacity);
        const bool hasRow = call.Data().Typ.Daten.Laenge != -1.0;
        std::copy_n(hoehen.begin(), places, heights);
        std::copy_n(tiefen.begin(), places, depths);
        std::copy_n(laengen.begin(), places, lengths);
        return call.Finish(hasRow ? RADSEL_OK : RADSEL_NOTHING, [&] {
            if (hasRow && firstRow != nullptr) {
                Store(firstRow, ToC(call.Data().Typ));
            }
        });
    });
}

int radsel_min_depth(radsel_request* request, double* depth)
{
    return AskDouble(request, depth, -1.0, HKGetMinTiefe);
}

int radsel_max_depth(radsel_request* request, double* depth)
{
    return AskDouble(request, depth, -1.0, HKGetMaxTiefe);
}

int radsel_water_content(radsel_request* request, double height, double depth, double length,
                         double* litres)
{
    return AskDouble(request, litres, 0.0, [&](HK_DATEN_VDI3805_UEBERGABE& uebergabe) {
        return GetHK_Inhalt(uebergabe, height, depth, length);
    });
}

int radsel_output_factor(double supplyTemperature, double returnTemperature, double roomTemperature,
                         double* factor)
{
    return Guarded([&] {
        Require(factor, "factor");
        *factor = GetLeistungsFaktor(supplyTemperature, returnTemperature, roomTemperature);
        return RADSEL_OK;
    });
}
