// The pictures that README and docs show.
//   radsel_make_doc_pictures <data folder> <picture folder>           writes them
//   radsel_make_doc_pictures --check <data folder> <picture folder>   compares them with fresh ones
// A picture that was to change is taken afresh by ninja radsel_doc_pictures.

#include "host/host_prefs.h"
#include "platform/encoding.h"
#include "reference_host/prefs/host_settings.h"
#include "tools/dialog_gallery.h"
#include "tools/picture_compare.h"
#include "tools/pretended_screen.h"
#include "uikit/application.h"
#include "uikit/dialog.h"
#include "uikit/native/access.h"
#include "workbench/plan/sizing.h"
#include "workbench/window/floor_scene.h"
#include "workbench/window/workbench_window.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

#include <cstdio>
#include <map>

using namespace reference_host;

using namespace workbench;

namespace {

using Pictures = std::map<QString, CWindowPicture>;

constexpr QSize kWindow(1180, 760);

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
                pictures[target] = TakePicture(*CNativeAccess::Widget(dialog));
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
    pictures["workbench.png"] = TakePicture(window);
}

bool Compare(const Pictures& pictures, const QDir& folder)
{
    bool same = true;
    for (const auto& [name, fresh] : pictures) {
        for (const QString& change : FindChanges(fresh, QImage(folder.filePath(name)))) {
            std::fprintf(stderr, "%s is stale: %s\n", qPrintable(folder.filePath(name)),
                         qPrintable(change));
            same = false;
        }
    }
    return same;
}

bool Write(const Pictures& pictures, const QDir& folder)
{
    bool written = folder.mkpath(".");
    for (const auto& [name, picture] : pictures) {
        written = picture.image.save(folder.filePath(name)) && written;
    }
    return written;
}

/// Makes the pictures the same whoever takes them: none of his settings, and folders as seen from
/// the data's neighbourhood, since a dialog shows them.
QString EnterNeutralPlace(const QTemporaryDir& settings, const QString& data)
{
    qputenv("XDG_CONFIG_HOME", settings.path().toUtf8());
    for (const char* const name : {"TGA_DATA_SINGLE", "QT_SCALE_FACTOR", "QT_FONT_DPI",
                                   "QT_STYLE_OVERRIDE", "XDG_CURRENT_DESKTOP"}) {
        qunsetenv(name);
    }
    const QDir folder(QDir(data).absolutePath());
    QDir::setCurrent(folder.filePath(".."));
    return folder.dirName();
}

} // namespace

int main(int argc, char** argv)
{
    const bool check = argc == 4 && QString(argv[1]) == "--check";
    if (argc != 3 && !check) {
        std::fprintf(stderr, "usage: radsel_make_doc_pictures [--check] <data folder> <folder>\n");
        return 2;
    }
    const QDir folder(QDir(argv[argc - 1]).absolutePath());
    const QTemporaryDir settings;
    const std::string data = EnterNeutralPlace(settings, argv[argc - 2]).toStdString();
    const CPretendedScreen screen(kAmple, kAmple);
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
