#pragma once

#include "platform/exception.h"
#include "platform/text.h"
#include "workbench/building/building.h"

#include <optional>

namespace workbench {

/// What the user asked for beside the command. Paths are as typed; an empty text was not given.
struct CArguments
{
    CString strBuilding;
    /// The building that counts where the user names none.
    CString strSample;
    /// Empty: the folder of the host's settings.
    CString strCatalogues;
    /// The same for the valves.
    CString strValveCatalogues;
    CString strOutput = L"out";
    /// File that the building is written to with the radiators that were chosen. Empty: none.
    CString strSave;
    /// Folder in which dialogs keep what belongs to this working place. Empty: the host's own.
    CString strWorkplace;
    /// Empty: every room, or the first one where a dialog opens on a single room.
    CString strRoom;
    /// The valve that the valve dialog opens on; empty for none. A maker may stand alone.
    CString strMaker;
    CString strValveNumber;
    /// The list of connection types to show. Empty: the one in the data root.
    CString strConnectionList;
    /// The schedule on the screen shows the kv tables of the valves as well.
    bool bValves = false;
    /// The CSV file is for programs.
    bool bCsvPlain = false;
    /// The connection dialog can be expanded.
    bool bSuperUser = false;
    /// Nothing: the building's own.
    std::optional<CHeatingSystem> system;
};

/// A command line that asks for something impossible. The message is for the user.
class CArgumentException : public CException
{
public:
    using CException::CException;
};

/// A pair of temperatures such as "75/65" or "55.5/45" (a comma counts as a point); nothing if the
/// text is no such pair or the temperatures are not plausible.
std::optional<CHeatingSystem> ParseHeatingSystem(const CString& text);

} // namespace workbench
