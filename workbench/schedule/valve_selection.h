#pragma once

#include "frame/ventil_kv.h"
#include "workbench/building/building.h"

namespace workbench {

/// How the fetching of a valve ended.
enum class ValveStatus
{
    /// None is wanted.
    none,
    found,
    /// The catalogues do not have the maker or the valve.
    notFound,
    /// The maker's file cannot be read.
    badFile,
};

struct CValveOutcome
{
    ValveStatus status = ValveStatus::none;
    /// The whole record of a valve that was found; of any other that is wanted only its key.
    VDI3805_VENTIL_KV ventil;
    /// Why the valve is missing; a text for the user, with file and line where they are known.
    CString strNote;
};

/// The valves of a room's radiator.
struct CRoomValves
{
    CValveOutcome vorlauf;
    CValveOutcome ruecklauf;
};

/// Fetches the valves of a radiator by their keys through the module. The files are those of the
/// host's settings.
CRoomValves FetchValves(const CValveKeys& keys);

/// The return valve as the dialog of connections is asked with it. The dialog reads the valves by
/// their keys, but none at all where there is no supply valve; then the record has been read here.
VDI3805_VENTIL_KV ReturnRecordOf(const CValveKeys& keys);

} // namespace workbench
