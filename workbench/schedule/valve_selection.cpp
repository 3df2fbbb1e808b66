#include "workbench/schedule/valve_selection.h"

#include "frame/entry_points.h"
#include "host/host_prefs.h"
#include "platform/exception.h"
#include "platform/file_fault.h"
#include "platform/path.h"
#include "reference_host/files/valve_file_check.h"

#include <filesystem>
#include <system_error>

namespace workbench {

namespace {

constexpr wchar_t kFileName[] = L"ha.tga";

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

/// The maker's file as a system path.
CString GetFile(const CValveKey& key)
{
    return TextFromPath(ResolvePath(JoinPath(GetFolder(key), kFileName)));
}

/// A line that lacks a field has raised an exception, which does not say which one it is.
CValveOutcome ExplainException(const CValveKey& key, const CException& error)
{
    const CString file = GetFile(key);
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
    return MakeFaulty(key, {0, error.GetErrorMessage(), file});
}

/// The module answers a file that it refuses or cannot open with the same silence as a number that
/// the file does not have.
CValveOutcome ExplainSilence(const CValveKey& key)
{
    std::error_code error;
    if (!std::filesystem::is_directory(ResolvePath(GetFolder(key)), error)) {
        return MakeMissing(key, ValveStatus::notFound,
                           L"la cartella delle valvole non ha il produttore \"" +
                               key.strHersteller + L"\"");
    }
    const CString file = GetFile(key);
    if (!std::filesystem::exists(ResolvePath(file), error)) {
        return MakeMissing(key, ValveStatus::notFound, L"manca il file " + file);
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

CValveOutcome Judge(const CValveKey& key, const VDI3805_VENTIL_KV& ventil)
{
    return ventil.Bezeichnung.empty() ? ExplainSilence(key)
                                      : CValveOutcome{ValveStatus::found, ventil, {}};
}

CValveOutcome FetchOne(const std::optional<CValveKey>& key)
{
    if (!key) {
        return {};
    }
    VDI3805_VENTIL_KV ventil;
    VDI3805_VENTIL_KV none;
    try {
        VDI3805GetVentil(key->strHersteller, key->strVentilNr, {}, {}, ventil, none);
    } catch (const CException& error) {
        return ExplainException(*key, error);
    }
    return Judge(*key, ventil);
}

CRoomValves FetchBoth(const CValveKey& vorlauf, const CValveKey& ruecklauf)
{
    VDI3805_VENTIL_KV ventil1;
    VDI3805_VENTIL_KV ventil2;
    VDI3805GetVentil(vorlauf.strHersteller, vorlauf.strVentilNr, ruecklauf.strHersteller,
                     ruecklauf.strVentilNr, ventil1, ventil2);
    return {Judge(vorlauf, ventil1), Judge(ruecklauf, ventil2)};
}

} // namespace

CRoomValves FetchValves(const CValveKeys& keys)
{
    if (keys.vorlauf && keys.ruecklauf) {
        try {
            return FetchBoth(*keys.vorlauf, *keys.ruecklauf);
        } catch (const CException&) {
            // The exception ends the fetching of both; one by one the sound file gives its valve.
        }
    }
    return {FetchOne(keys.vorlauf), FetchOne(keys.ruecklauf)};
}

} // namespace workbench
