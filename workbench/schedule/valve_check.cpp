#include "workbench/schedule/valve_check.h"

#include "host/host_prefs.h"
#include "platform/exception.h"
#include "platform/file_fault.h"
#include "platform/folder_name.h"
#include "platform/path.h"
#include "reference_host/files/valve_file_check.h"

#include <filesystem>
#include <set>
#include <system_error>
#include <utility>

namespace workbench {

namespace {

constexpr wchar_t kFileName[] = L"ha.tga";

void AddMakers(std::set<CString>& makers, const CValveKeys& keys)
{
    for (const auto& key : {keys.vorlauf, keys.ruecklauf}) {
        if (key && IsFolderName(key->strHersteller)) {
            makers.insert(key->strHersteller);
        }
    }
}

std::set<CString> MakersOf(const CBuilding& building)
{
    std::set<CString> makers;
    for (const CFloor& floor : building.floors) {
        for (const auto& room : floor.rooms) {
            AddMakers(makers, room->ventile);
            for (const CPlacedRadiator& radiator : room->heizkoerper) {
                AddMakers(makers, radiator.ventile);
            }
        }
    }
    return makers;
}

/// Empty for a file that is sound or not there.
CString FaultOf(const CString& file)
{
    std::error_code error;
    if (std::filesystem::status(ResolvePath(file), error).type() ==
        std::filesystem::file_type::not_found) {
        return {};
    }
    try {
        const reference_host::CValveFileCheck check(file);
        auto fault = check.FindReadingFault();
        if (!fault) {
            fault = check.FindDataFault();
        }
        return fault ? FormatFileFault(*fault) : CString();
    } catch (const CFileException& unreadable) {
        return unreadable.GetErrorMessage();
    }
}

} // namespace

CString ValveFileOf(const CString& hersteller)
{
    return TextFromPath(ResolvePath(JoinPath(JoinPath(GetVEDir(false), hersteller), kFileName)));
}

std::vector<CString> CheckValveFiles(const CBuilding& building)
{
    std::vector<CString> faults;
    for (const CString& maker : MakersOf(building)) {
        if (CString fault = FaultOf(ValveFileOf(maker)); !fault.empty()) {
            faults.push_back(std::move(fault));
        }
    }
    return faults;
}

} // namespace workbench
