#include "platform/encoding.h"
#include "platform/environment.h"
#include "workbench/program/arguments.h"
#include "workbench/program/batch.h"
#include "workbench/program/connection_list.h"
#include "workbench/program/connection_run.h"
#include "workbench/program/host_folders.h"
#include "workbench/program/radiator_run.h"
#include "workbench/program/tree_run.h"
#include "workbench/program/window_run.h"

#include <algorithm>
#include <iostream>
#include <iterator>

using namespace workbench;

namespace {

bool Has(const std::vector<CString>& arguments, const CString& option)
{
    return std::ranges::find(arguments, option) != arguments.end();
}

bool HasScreen()
{
    return GetEnvironment(L"DISPLAY") || GetEnvironment(L"WAYLAND_DISPLAY");
}

/// The window is for whoever asks for nothing else and can see it.
bool WantsWindow(const std::vector<CString>& arguments)
{
    return !Has(arguments, kBatchOption) && !Has(arguments, L"--help") &&
           !Has(arguments, L"--valve-dialog") && HasScreen();
}

/// What was installed with the program stands in for what the user leaves out.
void UseInstalled(std::vector<CString>& arguments)
{
    UseInstalledData();
    if (const auto data = InstalledDataFolder()) {
        const CString building = (*data / "buildings" / "villa-dei-tigli.json").wstring();
        arguments.insert(arguments.begin(), {L"--building", building});
    }
}

ExitCode Run(const std::vector<CString>& arguments)
{
    if (Has(arguments, L"--connection-dialog")) {
        return RunConnectionDialog(arguments, std::cout, std::cerr);
    }
    if (Has(arguments, kTreeDialogOption)) {
        return RunTreeDialog(arguments, std::cout, std::cerr);
    }
    if (Has(arguments, kRadiatorDialogOption)) {
        return RunRadiatorDialog(arguments, std::cout, std::cerr);
    }
    const auto listing = std::ranges::find(arguments, L"--list-connections");
    if (listing != arguments.end()) {
        const auto file = std::next(listing);
        return ListConnections(file == arguments.end() ? CString() : *file, std::cout, std::cerr);
    }
    return WantsWindow(arguments) ? RunWindow(arguments, std::cerr)
                                  : RunBatch(arguments, std::cout, std::cerr);
}

} // namespace

int main(int argc, char* argv[])
{
    std::vector<CString> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(WideFromUtf8(argv[i]));
    }
    UseInstalled(arguments);
    return static_cast<int>(Run(arguments));
}
