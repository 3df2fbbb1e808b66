#pragma once

#include "platform/text.h"
#include "workbench/batch/arguments.h"
#include "workbench/batch/exit_code.h"

#include <algorithm>
#include <iosfwd>
#include <span>
#include <vector>

namespace workbench {

/// An option that stands beside a command, and its checks.
struct COption
{
    /// With its two dashes.
    const wchar_t* name;
    bool takesValue;
    /// Keeps the option and its value, which is not empty where one is taken. Raises
    /// CArgumentException for a value that makes no sense.
    void (*keep)(CArguments& arguments, const CString& value);
    /// Called before a command that takes the option runs, given or not: puts it into force for the
    /// process. Raises CArgumentException where that is impossible. Null: the command asks itself.
    void (*use)(const CArguments& arguments) = nullptr;
    /// Every command accepts the option, since a starter puts its defaults in front of whatever the
    /// user types. Only the commands that list it check and use it.
    bool isAcceptedByAll = false;
    /// A program without windows does not know it.
    bool isForWindows = false;
};

enum class CommandId
{
    window,
    batch,
    radiatorDialog,
    treeDialog,
    connectionDialog,
    valveDialog,
    listConnections,
    help,
    version,
};

/// One of the things that the workbench does, whichever of its programs does them.
struct CCommand
{
    /// What the user types; null for the window, which opens where no command is typed.
    const wchar_t* name;
    /// Texts that may stand behind the name, in this order.
    std::vector<CString CArguments::*> operands;
    /// The options that the command uses. Another one that was given is an error, unless all
    /// commands accept it.
    std::vector<const COption*> options;
    CommandId id;
    /// The command only tells something: it goes before any other command on the line and accepts
    /// every option without using it.
    bool onlyTells = false;
};

/// Every command, and with them every option.
std::span<const CCommand> GetCommands();

/// How a program does what a command asks for. Errors that end it are raised or go to the second
/// stream.
struct CCommandRun
{
    CommandId id;
    ExitCode (*run)(const CArguments& arguments, std::ostream& out, std::ostream& err);
};

/// A program with these commands.
struct CProgram
{
    /// Stands in front of its messages.
    const wchar_t* name;
    /// The commands that it can run. The others need windows that it does not have, and are
    /// refused.
    std::span<const CCommandRun> runs;

    bool HasWindows() const
    {
        return std::ranges::find(runs, CommandId::window, &CCommandRun::id) != runs.end();
    }
};

} // namespace workbench
