#include "platform/encoding.h"
#include "platform/file.h"
#include "platform/path.h"
#include "tools/make_catalogues_samples.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

namespace {
void WriteCatalogue(const std::filesystem::path& folder, const CSampleCatalogue& sample)
{
    const std::filesystem::path target = folder / Utf8FromWide(sample.strHersteller);
    std::filesystem::create_directories(target);
    CFile file(TextFromPath(target / "hk.tga"), CFile::modeCreate | CFile::modeWrite);
    file.Write(sample.strBytes.data(), sample.strBytes.size());
    file.Close();
}
} // namespace

/// Writes the sample catalogues below the folder given.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: radsel_make_catalogues <folder>\n";
        return EXIT_FAILURE;
    }
    try {
        for (const CSampleCatalogue& sample : MakeSampleCatalogues()) {
            WriteCatalogue(argv[1], sample);
        }
    } catch (const std::exception& error) {
        std::cerr << "radsel_make_catalogues: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
