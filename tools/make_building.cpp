#include "platform/encoding.h"
#include "platform/number_scan.h"
#include "tools/make_building_samples.h"
#include "workbench/building/building_json.h"

#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>

using namespace workbench;

namespace {
constexpr int kMostRooms = 20000;
}

/// Writes a building of that many rooms, with radiators in its plan where the last argument asks
/// for them.
int main(int argc, char** argv)
{
    const int rooms = argc > 1 ? _wtoi(WideFromUtf8(argv[1])) : 0;
    const bool radiators = argc == 4 && std::string(argv[3]) == "--radiators";
    if (rooms < 1 || rooms > kMostRooms || argc < 3 || (argc > 3 && !radiators)) {
        std::cerr << "usage: radsel_make_building <rooms> <file> [--radiators]\n";
        return EXIT_FAILURE;
    }
    try {
        CBuilding building = MakeLargeBuilding(static_cast<std::size_t>(rooms));
        if (radiators) {
            PlaceSampleRadiators(building);
        }
        WriteBuilding(WideFromUtf8(argv[2]), building);
    } catch (const std::exception& error) {
        std::cerr << "radsel_make_building: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
