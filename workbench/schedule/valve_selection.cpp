#include "workbench/schedule/valve_selection.h"

#include "frame/entry_points.h"
#include "host/host_prefs.h"
#include "platform/exception.h"
#include "platform/file_fault.h"
#include "platform/folder_name.h"
#include "platform/path.h"
#include "platform/system_error.h"
#include "reference_host/files/valve_file_check.h"
#include "workbench/plan/module_call.h"
#include "workbench/plan/new_radiator.h"
#include "workbench/schedule/valve_check.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace workbench {

namespace {

namespace fs = std::filesystem;

CValveOutcome MakeMissing(const CValveKey& key, ValveStatus status, const CString& note)
{
    CValveOutcome outcome;
    outcome.status = status;
    outcome.ventil.Hersteller = key.strHersteller;
    outcome.ventil.VentilNr = key.strVentilNr;
    outcome.strNote = note;
    return outcome;
}

CValveOutcome MakeFaulty(const CValveKey& key, const CFileFault& fault)
{
    return MakeMissing(key, ValveStatus::badFile, FormatFileFault(fault));
}

CString GetFolder(const CValveKey& key)
{
    return JoinPath(GetVEDir(false), key.strHersteller);
}

/// A line that lacks a field has raised an exception, which does not say which one it is.
CValveOutcome ExplainException(const CValveKey& key, const CModuleFault& error)
{
    const CString file = ValveFileOf(key.strHersteller);
    try {
        const reference_host::CValveFileCheck check(file);
        if (const auto fault = check.FindReadingFault()) {
            return MakeFaulty(key, *fault);
        }
        if (const auto fault = check.FindDataFault()) {
            return MakeFaulty(key, *fault);
        }
    } catch (const CFileException& unreadable) {
        return MakeMissing(key, ValveStatus::badFile, unreadable.GetErrorMessage());
    }
    return MakeFaulty(key, {0, error.GetMessage(), file});
}

/// The module answers a file that it refuses or cannot open with the same silence as a number that
/// the file does not have.
CValveOutcome ExplainSilence(const CValveKey& key)
{
    if (!IsFolderName(key.strHersteller)) {
        return MakeMissing(key, ValveStatus::notFound,
                           L"\"" + key.strHersteller + L"\" non è il nome di un produttore");
    }
    const CString folder = TextFromPath(ResolvePath(GetFolder(key)));
    const CString file = ValveFileOf(key.strHersteller);
    for (const CString& place : {folder, file}) {
        std::error_code error;
        const fs::file_type type = fs::status(ResolvePath(place), error).type();
        if (type == fs::file_type::none) {
            return MakeFaulty(key, {0, L"non si può leggere: " + ReasonOf(error), place});
        }
        if (type == fs::file_type::not_found) {
            return MakeMissing(key, ValveStatus::notFound,
                               place == file
                                   ? L"manca il file " + file
                                   : L"la cartella delle valvole non ha il produttore \"" +
                                         key.strHersteller + L"\"");
        }
    }
    try {
        const reference_host::CValveFileCheck check(file);
        if (const auto fault = check.FindReadingFault()) {
            return MakeFaulty(key, *fault);
        }
        if (const auto fault = check.FindArticle(key.strVentilNr)) {
            return MakeFaulty(key, *fault);
        }
    } catch (const CFileException& unreadable) {
        return MakeMissing(key, ValveStatus::badFile, unreadable.GetErrorMessage());
    }
    return MakeMissing(key, ValveStatus::notFound,
                       L"il file di " + key.strHersteller + L" non ha la valvola " +
                           key.strVentilNr);
}

/// The records of two valves, either of which may be none.
std::pair<VDI3805_VENTIL_KV, VDI3805_VENTIL_KV> Fetch(const CValveKey& first,
                                                      const CValveKey& second)
{
    std::pair<VDI3805_VENTIL_KV, VDI3805_VENTIL_KV> valves;
    CallModule(L"Valvole", [&] {
        VDI3805GetVentil(first.strHersteller, first.strVentilNr, second.strHersteller,
                         second.strVentilNr, valves.first, valves.second);
    });
    return valves;
}

bool IsFound(const VDI3805_VENTIL_KV& ventil)
{
    return !ventil.Bezeichnung.empty();
}

/// A valve that was not found is asked for once more: a file that could not be opened for a moment
/// is no reason to leave it out.
CValveOutcome Judge(const CValveKey& key, VDI3805_VENTIL_KV ventil)
{
    if (!IsFound(ventil)) {
        ventil = Fetch(key, {}).first;
    }
    return IsFound(ventil) ? CValveOutcome{ValveStatus::found, ventil, {}} : ExplainSilence(key);
}

CValveOutcome FetchOne(const std::optional<CValveKey>& key)
{
    if (!key) {
        return {};
    }
    try {
        return Judge(*key, Fetch(*key, {}).first);
    } catch (const CModuleFault& error) {
        return ExplainException(*key, error);
    }
}

CRoomValves FetchBoth(const CValveKey& vorlauf, const CValveKey& ruecklauf)
{
    const auto [ventil1, ventil2] = Fetch(vorlauf, ruecklauf);
    return {Judge(vorlauf, ventil1), Judge(ruecklauf, ventil2)};
}

} // namespace

CRoomValves FetchValves(const CValveKeys& keys)
{
    if (keys.vorlauf && keys.ruecklauf) {
        try {
            return FetchBoth(*keys.vorlauf, *keys.ruecklauf);
        } catch (const CModuleFault&) {
            // The exception ends the fetching of both; one by one the sound file gives its valve.
        }
    }
    return {FetchOne(keys.vorlauf), FetchOne(keys.ruecklauf)};
}

VDI3805_VENTIL_KV ReturnRecordOf(const CValveKeys& keys)
{
    return keys.vorlauf ? RecordOf(keys.ruecklauf) : FetchOne(keys.ruecklauf).ventil;
}

} // namespace workbench
