#include "platform/file.h"
#include "platform/path.h"
#include "tools/make_drawings_samples.h"

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <iostream>

using namespace workbench;

namespace {
void WriteDrawings(const std::filesystem::path& folder)
{
    std::filesystem::create_directories(folder);
    for (const CSampleDrawing& sample : MakeSampleDrawings()) {
        CFile file(TextFromPath(folder / sample.lpszFile), CFile::modeCreate | CFile::modeWrite);
        file.Write(sample.strBytes.data(), sample.strBytes.size());
        file.Close();
    }
}
} // namespace

/// Writes the sample drawings into the folder given.
int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: radsel_make_drawings <folder>\n";
        return EXIT_FAILURE;
    }
    try {
        WriteDrawings(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "radsel_make_drawings: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
