#include "frame/hkauswahl_uebergabe.h"
#include "frame/vdi6030_start.h"
#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "tests/fuzz/entries.h"
#include "tests/src/platform/archived.h"
#include "tests/support/setting_override.h"
#include "tests/support/temp_folder.h"

#include <optional>
#include <string>

using namespace reference_host;

namespace {

constexpr wchar_t kStart[] = L"Vdi6030Start.def";
constexpr wchar_t kLayer[] = L"HkAuswahl.def";

std::optional<HKAUSWAHL_UEBERGABE> ReadLayer()
{
    const CObject* const object = ReadDefFile(&HKAUSWAHL_UEBERGABE::GetThisClass(), kLayer);
    Require(!object || object->IsKindOf(HKAUSWAHL_UEBERGABE::GetThisClass()),
            "class of the object");
    return object ? std::optional(*static_cast<const HKAUSWAHL_UEBERGABE*>(object)) : std::nullopt;
}

void CheckLayer()
{
    HKAUSWAHL_UEBERGABE layer = ReadLayer().value_or(HKAUSWAHL_UEBERGABE());
    Require(WriteDefFile(&layer, &HKAUSWAHL_UEBERGABE::GetThisClass(), kLayer),
            "the layer is stored");
    const auto again = ReadLayer();
    Require(again && Stored(*again) == Stored(layer), "a stored layer comes back");
}

std::optional<VDI6030START> ReadStart()
{
    const VDI6030START* const start = ReadDefFile_VDI6030START(false);
    return start ? std::optional(*start) : std::nullopt;
}

void StoreStart(VDI6030START start)
{
    Require(WriteDefFile_VDI6030START(&start, false), "the start values are stored");
    const auto again = ReadStart();
    Require(again && Stored(*again) == Stored(start), "stored start values come back");
}

void CheckStart()
{
    VDI6030START start = ReadStart().value_or(VDI6030START());
    StoreStart(start);
    start.SystemVorlauf = start.SystemVorlauf == 55 ? 70 : 55;
    start.Produkt += L"x";
    StoreStart(start);
}

} // namespace

void RunDefFile(std::span<const std::uint8_t> bytes)
{
    if (bytes.empty()) {
        return;
    }
    static const CTempFolder folder;
    const CSettingOverride setting(kSettingDefFolder, folder.Path());
    const std::uint8_t choice = bytes[0];
    const ArchiveBytes rest(bytes.begin() + 1, bytes.end());
    const ArchiveBytes archive = choice % 2 == 0 ? Framed(rest) : rest;
    const bool isStart = choice / 2 % 2 == 0;
    folder.WriteBytes(Utf8FromWide(isStart ? kStart : kLayer),
                      std::string(archive.begin(), archive.end()));
    if (isStart) {
        CheckStart();
    } else {
        CheckLayer();
    }
}
