#include "platform/encoding.h"
#include "platform/file.h"
#include "platform/path.h"
#include "tools/make_valves_samples.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

namespace {
void WriteValves(const std::filesystem::path& folder, const CSampleValves& sample)
{
    const std::filesystem::path target = folder / Utf8FromWide(sample.strHersteller);
    std::filesystem::create_directories(target);
    CFile file(TextFromPath(target / "ha.tga"), CFile::modeCreate | CFile::modeWrite);
    file.Write(sample.strBytes.data(), sample.strBytes.size());
    file.Close();
}
} // namespace

/// Writes the sample valve catalogues below the folder given.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: radsel_make_valves <folder>\n";
        return EXIT_FAILURE;
    }
    try {
        for (const CSampleValves& sample : MakeSampleValves()) {
            WriteValves(argv[1], sample);
        }
    } catch (const std::exception& error) {
        std::cerr << "radsel_make_valves: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
