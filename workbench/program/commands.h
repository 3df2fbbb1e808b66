#pragma once

#include "platform/text.h"
#include "workbench/program/arguments.h"
#include "workbench/program/exit_code.h"

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

/// One of the things that the program does.
struct CCommand
{
    /// What the user types; null for the window, which opens where no command is typed.
    const wchar_t* name;
    /// Texts that may stand behind the name, in this order.
    std::vector<CString CArguments::*> operands;
    /// The options that the command uses. Another one that was given is an error, unless all
    /// commands accept it.
    std::vector<const COption*> options;
    /// Errors that end the command are raised or go to the second stream.
    ExitCode (*run)(const CArguments& arguments, std::ostream& out, std::ostream& err);
    CommandId id;
    /// The command only tells something: it goes before any other command on the line and accepts
    /// every option without using it.
    bool onlyTells = false;
};

/// Every command of the program, and with them every option.
std::span<const CCommand> GetCommands();

} // namespace workbench
