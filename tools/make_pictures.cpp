// Writes a picture of every dialog of the module into a folder: at the size of its template, grown
// by half where it can grow, and at a font of one and a half times the size.
//   radsel_make_pictures <data folder> <picture folder>

#include "tools/dialog_gallery.h"
#include "uikit/application.h"
#include "uikit/dialog.h"
#include "uikit/native/access.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QPixmap>

#include <cstdio>

namespace {

constexpr double kNormalPoints = 8;
constexpr double kLargePoints = 12;
constexpr double kGrowth = 1.5;

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

void TakePicture(const GalleryEntry& entry, const QString& path, double points, bool grown)
{
    SetDialogFontSize(points);
    const DialogObserver before = SetDialogObserver([&](CDialog& dialog) {
        for (const int id : entry.presses) {
            Press(dialog, id);
        }
        const CRect place = dialog.GetWindowRect();
        if (grown) {
            dialog.MoveWindow({place.left, place.top,
                               place.left + static_cast<int>(place.Width() * kGrowth),
                               place.top + static_cast<int>(place.Height() * kGrowth)});
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
    const QDir folder(argv[2]);
    if (!folder.mkpath(".")) {
        std::fprintf(stderr, "cannot make %s\n", argv[2]);
        return 1;
    }
    for (const GalleryEntry& entry : DialogGallery(argv[1])) {
        const QString name = QString::fromStdString(entry.name);
        TakePicture(entry, folder.filePath(name + ".png"), kNormalPoints, false);
        TakePicture(entry, folder.filePath(name + "_grande.png"), kNormalPoints, true);
        TakePicture(entry, folder.filePath(name + "_caratteri.png"), kLargePoints, false);
    }
    return g_failed ? 1 : 0;
}
