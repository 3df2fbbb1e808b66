#include "platform/encoding.h"
#include "platform/environment.h"
#include "platform/path.h"
#include "workbench/program/command_line.h"
#include "workbench/program/host_folders.h"

#include <iostream>
#include <vector>

using namespace workbench;

namespace {

bool HasScreen()
{
    return GetEnvironment(L"DISPLAY") || GetEnvironment(L"WAYLAND_DISPLAY");
}

/// What was installed with the program stands in for what the user leaves out.
std::vector<CString> InstalledDefaults()
{
    UseInstalledData();
    const auto data = InstalledDataFolder();
    if (!data) {
        return {};
    }
    return {L"--sample", TextFromPath(*data / "buildings" / "villa-dei-tigli.json")};
}

} // namespace

int main(int argc, char* argv[])
{
    std::vector<CString> arguments = InstalledDefaults();
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(WideFromUtf8(argv[i]));
    }
    return static_cast<int>(RunCommandLine(arguments, HasScreen(), std::cout, std::cerr));
}
