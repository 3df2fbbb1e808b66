// Writes a picture of every dialog of the module into a folder: at the size of its template, grown
// by half and to double height where it can grow, at a font of one and a half times the size, and
// in dark colours; and pictures of the plan, of the workbench's window and of the host's dialogs.
//   radsel_make_pictures <data folder> <picture folder>

#include "tools/dark_palette.h"
#include "tools/dialog_gallery.h"
#include "tools/plan_gallery.h"
#include "tools/pretended_screen.h"
#include "tools/window_gallery.h"
#include "uikit/application.h"
#include "uikit/dialog.h"
#include "uikit/native/access.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>

namespace {

/// How a dialog is seen: size of its font, what its window grows by, and in what colours.
struct View
{
    const char* suffix;
    double points = 8;
    double width = 1;
    double height = 1;
    bool dark = false;
};

constexpr View kViews[] = {{""},
                           {"_grande", 8, 1.5, 1.5},
                           {"_alta", 8, 1, 2},
                           {"_caratteri", 12},
                           {"_scuro", 8, 1, 1, true}};

bool g_failed = false;

void Save(const CDialog& dialog, const QString& path)
{
    QCoreApplication::processEvents();
    if (!CNativeAccess::Widget(dialog)->grab().save(path)) {
        std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
        g_failed = true;
    }
}

void Press(const CDialog& dialog, int id)
{
    auto* button = CNativeAccess::As<QAbstractButton>(dialog.GetDlgItem(id));
    if (button == nullptr) {
        std::fprintf(stderr, "dialog %d has no button %d\n", dialog.GetTemplateId(), id);
        g_failed = true;
        return;
    }
    button->click();
}

void TakePicture(const GalleryEntry& entry, const QString& path, const View& view)
{
    SetDialogFontSize(view.points);
    const CColors colors(view.dark ? DarkPalette() : QApplication::palette());
    const bool grown = view.height > 1;
    const DialogObserver before = SetDialogObserver([&](CDialog& dialog) {
        for (const int id : entry.presses) {
            Press(dialog, id);
        }
        const CRect place = dialog.GetWindowRect();
        if (grown) {
            dialog.MoveWindow({place.left, place.top,
                               place.left + static_cast<int>(place.Width() * view.width),
                               place.top + static_cast<int>(place.Height() * view.height)});
        }
        if (!grown || dialog.IsResizable()) {
            Save(dialog, path);
        }
        dialog.EndDialog(kIdCancel);
    });
    entry.open();
    SetDialogObserver(before);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: radsel_make_pictures <data folder> <picture folder>\n");
        return 2;
    }
    const CPretendedScreen screen(kAmple, kAmple);
    EnsureApplication();
    const QDir folder(argv[2]);
    if (!folder.mkpath(".")) {
        std::fprintf(stderr, "cannot make %s\n", argv[2]);
        return 1;
    }
    for (const GalleryEntry& entry : DialogGallery(argv[1])) {
        const QString name = QString::fromStdString(entry.name);
        for (const View& view : kViews) {
            TakePicture(entry, folder.filePath(name + view.suffix + ".png"), view);
        }
    }
    const bool written = WritePlanPictures(argv[1], folder) && WriteWindowPictures(argv[1], folder);
    return written && !g_failed ? 0 : 1;
}
