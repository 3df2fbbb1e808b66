#include "workbench/batch/command_line.h"

#include "platform/encoding.h"
#include "workbench/batch/console.h"
#include "workbench/building/json_fields.h"
#include "workbench/plan/module_call.h"

#include <algorithm>
#include <cstddef>
#include <ostream>
#include <utility>

namespace workbench {

namespace {

bool BeginsLikeOption(const CString& argument)
{
    return argument.starts_with(L"--");
}

const CCommand& CommandOf(CommandId id)
{
    return *std::ranges::find(GetCommands(), id, &CCommand::id);
}

/// The command of that name; null if the text is none.
const CCommand* FindCommand(const CString& name)
{
    const auto found = std::ranges::find_if(GetCommands(), [&](const CCommand& command) {
        return command.name && name == command.name;
    });
    return found == GetCommands().end() ? nullptr : &*found;
}

/// The option of that name, whichever commands use it; null if the program knows none.
const COption* FindOption(const CProgram& program, const CString& name)
{
    for (const CCommand& command : GetCommands()) {
        for (const COption* option : command.options) {
            if (name == option->name) {
                return option->isForWindows && !program.HasWindows() ? nullptr : option;
            }
        }
    }
    return nullptr;
}

CString TextOf(const CCommand& command)
{
    return command.name ? command.name : L"la finestra (senza --batch)";
}

/// Commands are found before options are read: no value can look like one.
const CCommand& ChooseCommand(const std::vector<CString>& arguments, bool hasScreen)
{
    std::vector<const CCommand*> typed;
    for (const CString& argument : arguments) {
        const CCommand* command = FindCommand(argument);
        if (command && command->onlyTells) {
            return *command;
        }
        if (command && std::ranges::find(typed, command) == typed.end()) {
            typed.push_back(command);
        }
    }
    if (typed.empty()) {
        return CommandOf(hasScreen ? CommandId::window : CommandId::batch);
    }
    if (typed.size() > 1) {
        throw CArgumentException(TextOf(*typed[0]) + L" e " + TextOf(*typed[1]) +
                                 L" non si possono chiedere insieme");
    }
    return *typed.front();
}

bool Accepts(const CCommand& command, const COption& option)
{
    return option.isAcceptedByAll || command.onlyTells ||
           std::ranges::find(command.options, &option) != command.options.end();
}

class CArgumentReader
{
public:
    CArgumentReader(const CProgram& program, const std::vector<CString>& arguments,
                    const CCommand& command)
        : m_program(program), m_arguments(arguments), m_command(command)
    {
    }

    CArguments Read()
    {
        while (m_next < m_arguments.size()) {
            const CString& argument = m_arguments[m_next++];
            if (const CCommand* typed = FindCommand(argument)) {
                TakeOperands(*typed);
            } else {
                TakeOption(argument);
            }
        }
        return std::move(m_result);
    }

private:
    bool ATextFollows() const
    {
        return m_next < m_arguments.size() && !BeginsLikeOption(m_arguments[m_next]);
    }

    void TakeOperands(const CCommand& typed)
    {
        for (CString CArguments::*field : typed.operands) {
            if (!ATextFollows()) {
                return;
            }
            m_result.*field = m_arguments[m_next++];
        }
    }

    void TakeOption(const CString& argument)
    {
        const std::size_t equals = argument.find(L'=');
        const bool hasValue = equals != CString::npos;
        const COption* option = FindOption(m_program, argument.substr(0, equals));
        if (!option || (hasValue && !option->takesValue)) {
            throw CArgumentException(L"argomento sconosciuto per " + TextOf(m_command) + L": " +
                                     argument);
        }
        if (!Accepts(m_command, *option)) {
            throw CArgumentException(TextOf(m_command) + L" non ammette l'opzione " + option->name);
        }
        CString value;
        if (hasValue) {
            value = argument.substr(equals + 1);
        } else if (option->takesValue && ATextFollows()) {
            value = m_arguments[m_next++];
        }
        if (option->takesValue && value.empty()) {
            throw CArgumentException(CString(L"l'opzione ") + option->name +
                                     L" richiede un valore");
        }
        option->keep(m_result, value);
    }

    const CProgram& m_program;
    const std::vector<CString>& m_arguments;
    const CCommand& m_command;
    std::size_t m_next = 0;
    CArguments m_result;
};

ExitCode Run(const CProgram& program, const CCommandLine& line, std::ostream& out,
             std::ostream& err)
{
    const auto command = std::ranges::find(program.runs, line.command.id, &CCommandRun::id);
    if (command == program.runs.end()) {
        throw CArgumentException(TextOf(line.command) +
                                 L" apre una finestra, che soltanto radsel_workbench ha");
    }
    for (const COption* option : line.command.options) {
        if (option->use) {
            option->use(line.arguments);
        }
    }
    return command->run(line.arguments, out, err);
}

} // namespace

CCommandLine ParseCommandLine(const CProgram& program, const std::vector<CString>& arguments,
                              bool hasScreen)
{
    const CCommand& command = ChooseCommand(arguments, hasScreen);
    return {command, CArgumentReader(program, arguments, command).Read()};
}

ExitCode RunCommandLine(const CProgram& program, const std::vector<CString>& arguments,
                        bool hasScreen, std::ostream& out, std::ostream& err)
{
    SetProgramName(program.name);
    try {
        return Run(program, ParseCommandLine(program, arguments, hasScreen), out, err);
    } catch (const CArgumentException& error) {
        return Report(err, error.GetErrorMessage() + L" (--help mostra le opzioni)",
                      ExitCode::wrongArguments);
    } catch (const CContentException& error) {
        return Report(err, error.GetErrorMessage(), ExitCode::badBuilding);
    } catch (const CModuleFault& fault) {
        return Report(err, fault.GetMessage(), ExitCode::badCatalogue);
    } catch (const std::exception& error) {
        return Report(err, L"errore imprevisto: " + WideFromUtf8(error.what()),
                      ExitCode::unexpected);
    }
}

} // namespace workbench
