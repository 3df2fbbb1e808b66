// The pictures that README and docs show.
//   radsel_make_doc_pictures <data folder> <picture folder>           writes them
//   radsel_make_doc_pictures --check <data folder> <picture folder>   compares them with fresh ones

#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "tools/dialog_gallery.h"
#include "uikit/application.h"
#include "uikit/dialog.h"
#include "uikit/native/access.h"
#include "workbench/plan/sizing.h"
#include "workbench/window/floor_scene.h"
#include "workbench/window/workbench_window.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>
#include <cstdlib>
#include <map>

using namespace reference_host;

using namespace workbench;

namespace {

using Pictures = std::map<QString, QImage>;

/// Mean difference of a colour channel, out of 255, below which two pictures show the same: what
/// another version of a font does to edges of letters stays below it, another caption does not.
constexpr double kSameToTheEye = 2.0;

constexpr QSize kWindow(1180, 720);

/// The dialogs by their names in the gallery.
constexpr std::pair<const char*, const char*> kDialogs[] = {
    {"scelta_corpi_locale", "selection.png"},
    {"attacco", "connection.png"},
    {"scelta_valvola", "valve.png"},
};

void TakeDialogs(const std::string& data, Pictures& pictures)
{
    for (const GalleryEntry& entry : DialogGallery(data)) {
        for (const auto& [name, file] : kDialogs) {
            if (entry.name != name) {
                continue;
            }
            const QString target = file;
            const DialogObserver before = SetDialogObserver([&](CDialog& dialog) {
                QCoreApplication::processEvents();
                pictures[target] = CNativeAccess::Widget(dialog)->grab().toImage();
                dialog.EndDialog(kIdCancel);
            });
            entry.open();
            SetDialogObserver(before);
        }
    }
}

void TakeWindow(const CString& data, Pictures& pictures)
{
    OverrideHostSetting(kSettingHKDir, data + L"/catalogues");
    OverrideHostSetting(kSettingVEDir, data + L"/valves");
    OverrideHostSetting(kSettingHKBlockFolder, data + L"/drawing/heizkoerper.dxf");
    OverrideHostSetting(kSettingValveBlockFolder, data + L"/drawing/ventile.dxf");
    CPlanDocument document(nullptr);
    document.Open(data + L"/buildings/villa-dei-tigli.json");
    document.Do(L"", SizeRooms(document.Building(), AllRooms(document.Building()), {}).building);
    CWorkbenchWindow window(document, ReadDrawingBlocks(), MakePrompts());
    window.resize(kWindow);
    window.show();
    window.findChild<CFloorScene*>()->MarkRooms({{0, 1}});
    QCoreApplication::processEvents();
    pictures["workbench.png"] = window.grab().toImage();
}

double Difference(const QImage& a, const QImage& b)
{
    if (a.size() != b.size()) {
        return 255.0;
    }
    double sum = 0.0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QColor first = a.pixelColor(x, y);
            const QColor second = b.pixelColor(x, y);
            sum += std::abs(first.red() - second.red()) + std::abs(first.green() - second.green()) +
                   std::abs(first.blue() - second.blue());
        }
    }
    return sum / (3.0 * a.width() * a.height());
}

bool Compare(const Pictures& pictures, const QDir& folder)
{
    bool same = true;
    for (const auto& [name, fresh] : pictures) {
        const double difference = Difference(fresh, QImage(folder.filePath(name)));
        if (difference > kSameToTheEye) {
            std::fprintf(stderr, "%s is stale: a fresh one differs by %.1f of 255\n",
                         qPrintable(folder.filePath(name)), difference);
            same = false;
        }
    }
    return same;
}

bool Write(const Pictures& pictures, const QDir& folder)
{
    bool written = folder.mkpath(".");
    for (const auto& [name, picture] : pictures) {
        written = picture.save(folder.filePath(name)) && written;
    }
    return written;
}

} // namespace

int main(int argc, char** argv)
{
    const bool check = argc == 4 && QString(argv[1]) == "--check";
    if (argc != 3 && !check) {
        std::fprintf(stderr, "usage: radsel_make_doc_pictures [--check] <data folder> <folder>\n");
        return 2;
    }
    const char* const data = argv[argc - 2];
    const QDir folder(argv[argc - 1]);
    EnsureApplication();
    SetDialogFontSize(8);
    Pictures pictures;
    TakeDialogs(data, pictures);
    TakeWindow(WideFromUtf8(data), pictures);
    if (pictures.size() != std::size(kDialogs) + 1) {
        std::fprintf(stderr, "a dialog has no picture\n");
        return 1;
    }
    return (check ? Compare(pictures, folder) : Write(pictures, folder)) ? 0 : 1;
}
