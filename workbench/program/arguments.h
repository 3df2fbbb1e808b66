#pragma once

#include "platform/exception.h"
#include "platform/text.h"
#include "workbench/building/building.h"

#include <optional>
#include <vector>

namespace workbench {

/// The option that RunTreeDialog() serves.
inline constexpr wchar_t kTreeDialogOption[] = L"--tree-dialog";

/// What the user asked for on the command line. Paths are as typed.
struct CArguments
{
    bool bHelp = false;
    /// The schedule on the screen shows the kv tables of the valves as well.
    bool bValves = false;
    /// A product is picked in the catalogue tree; needs no building.
    bool bTreeDialog = false;
    CString strBuilding;
    /// Empty: the folder of the host's settings.
    CString strCatalogues;
    /// The same for the valves.
    CString strValveCatalogues;
    CString strOutput = L"out";
    /// File that the building is written to with the radiators that were chosen. Empty: none.
    CString strSave;
    /// Folder in which dialogs keep what belongs to this working place. Empty: the host's own.
    CString strWorkplace;
    /// Opens the valve dialog instead of calculating a building.
    bool bValveDialog = false;
    /// The valve to open on; empty for none. A maker may stand alone.
    CString strMaker;
    CString strValveNumber;
    /// Empty: every room.
    CString strRoom;
    /// Nothing: the building's own.
    std::optional<CHeatingSystem> system;
};

/// A command line that asks for something impossible. The message is for the user.
class CArgumentException : public CException
{
public:
    using CException::CException;
};

/// Reads the arguments behind the program's name. An option given twice counts as given last, so
/// that a script can put its defaults in front. Raises CArgumentException.
CArguments ParseArguments(const std::vector<CString>& arguments);

/// A pair of temperatures such as "75/65" or "55.5/45" (a comma counts as a point); nothing if the
/// text is no such pair or the temperatures are not plausible.
std::optional<CHeatingSystem> ParseHeatingSystem(const CString& text);

/// The text that --help shows.
CString GetHelpText();

} // namespace workbench
