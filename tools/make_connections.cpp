#include "platform/file.h"
#include "platform/path.h"
#include "tools/make_connections_samples.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

namespace {
void WriteShortList(const std::filesystem::path& root)
{
    const std::filesystem::path target = root / "HEIZUNG";
    std::filesystem::create_directories(target);
    const std::string bytes = MakeSampleConnections();
    CFile file(TextFromPath(target / "Vent.txt"), CFile::modeCreate | CFile::modeWrite);
    file.Write(bytes.data(), bytes.size());
    file.Close();
}
} // namespace

/// Writes the short list of connection types below the data root given.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: radsel_make_connections <data root>\n";
        return EXIT_FAILURE;
    }
    try {
        WriteShortList(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "radsel_make_connections: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
