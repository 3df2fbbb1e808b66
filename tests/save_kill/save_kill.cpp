// Writes two buildings to one file in turn, to be killed at it, and tells what is in the file.

#include "platform/encoding.h"
#include "tools/make_building_samples.h"
#include "workbench/building/building_json.h"

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

using namespace workbench;

namespace {

CBuilding MakeBuilding(std::size_t rooms)
{
    CBuilding building = MakeLargeBuilding(rooms);
    PlaceSampleRadiators(building);
    return building;
}

/// Of different sizes, so that a longer one left below a shorter one would show.
struct CPair
{
    CBuilding a = MakeBuilding(80);
    CBuilding b = MakeBuilding(50);
};

int Check(const std::string& path)
{
    const CPair pair;
    const std::string read = FormatBuilding(ReadBuilding(WideFromUtf8(path)));
    std::ifstream file(path, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    for (const auto& [name, building] : {std::pair("A", &pair.a), std::pair("B", &pair.b)}) {
        if (bytes == FormatBuilding(*building) && read == bytes) {
            std::cout << name << '\n';
            return EXIT_SUCCESS;
        }
    }
    std::cerr << path << ": neither building, " << bytes.size() << " bytes\n";
    return EXIT_FAILURE;
}

/// Says when the file is there for the first time.
[[noreturn]] void WriteUntilKilled(const CString& path)
{
    const CPair pair;
    WriteBuilding(path, pair.a);
    std::cout << "begun" << std::endl;
    for (;;) {
        WriteBuilding(path, pair.b);
        WriteBuilding(path, pair.a);
    }
}

int Run(const std::string& mode, const std::string& path)
{
    if (mode == "--check") {
        return Check(path);
    }
    if (mode == "--write") {
        WriteUntilKilled(WideFromUtf8(path));
    }
    if (mode == "--once") {
        WriteBuilding(WideFromUtf8(path), CPair().b);
        return EXIT_SUCCESS;
    }
    std::cerr << "usage: radsel_save_kill --write|--once|--check <file>\n";
    return EXIT_FAILURE;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Run(argc == 3 ? argv[1] : "", argc == 3 ? argv[2] : "");
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
}
