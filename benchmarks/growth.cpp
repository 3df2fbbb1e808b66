// Tells how memory and open files of a host grow while it uses the module all day: opens every
// dialog many times, and calls the silent search many more times.
//   radsel_growth <data folder> [openings of a dialog] [silent calls] [name of a dialog]
//
// The growth of a piece of work is that behind its first tenth, when caches are full.

#include "frame/entry_points.h"
#include "frame/handover.h"
#include "platform/encoding.h"
#include "tests/dialog_support/dialog_run.h"
#include "tests/support/setting_override.h"
#include "tools/dialog_gallery.h"
#include "uikit/application.h"
#include "uikit/dialog.h"

#include <QCoreApplication>

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

namespace {

struct Use
{
    double kilobytes = 0.0;
    long files = 0;
};

Use CurrentUse()
{
    malloc_trim(0);
    long pages = 0;
    std::ifstream statm("/proc/self/statm");
    statm >> pages >> pages;
    Use use;
    use.kilobytes = static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1024;
    use.files = std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
    return use;
}

void Measure(const std::string& name, int count, const std::function<void()>& work)
{
    const int first = std::max(count / 10, 1);
    for (int i = 0; i < first; ++i) {
        work();
    }
    const Use before = CurrentUse();
    for (int i = first; i < count; ++i) {
        work();
    }
    const Use after = CurrentUse();
    const double grown = after.kilobytes - before.kilobytes;
    std::printf("%-26s %8d x %9.0f kB %9.3f kB each %4ld files\n", name.c_str(), count, grown,
                grown / std::max(count - first, 1), after.files - before.files);
    std::fflush(stdout);
}

void MeasureDialogs(const std::string& dataFolder, int openings, const std::string& only)
{
    for (const GalleryEntry& entry : DialogGallery(dataFolder)) {
        if (only.empty() || entry.name == only) {
            Measure(entry.name, openings, [&] {
                RunDialog(entry.open, [](CDialog&) { QCoreApplication::processEvents(); });
            });
        }
    }
}

void MeasureSilentCalls(const std::string& dataFolder, int calls)
{
    const CSettingOverride catalogues(reference_host::kSettingHKDir,
                                      WideFromUtf8(dataFolder + "/catalogues"));
    HK_DATEN_VDI3805_UEBERGABE wish;
    wish.Hersteller = L"Valmorena";
    wish.Art = L"Radiatori a piastra compatti";
    wish.Produkt = L"Tipo 22";
    wish.LaengeMax = wish.HoeheMax = wish.TiefeMax = 100000.0;
    int number = 0;
    Measure("silent search", calls, [&] {
        wish.Leistung = 500.0 + number++ % 1000;
        CString layer;
        int color = 0;
        if (HeizkoerperauswahlVDI3805(nullptr, &wish, layer, color, false, false) < 0) {
            std::fprintf(stderr, "the sample catalogues have no row\n");
            std::exit(1);
        }
    });
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2 || argc > 5) {
        std::fprintf(stderr, "usage: %s <data folder> [openings] [silent calls] [dialog]\n",
                     argv[0]);
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    EnsureApplication();
    MeasureDialogs(argv[1], argc > 2 ? std::atoi(argv[2]) : 1000, argc > 4 ? argv[4] : "");
    MeasureSilentCalls(argv[1], argc > 3 ? std::atoi(argv[3]) : 100000);
    return 0;
}
