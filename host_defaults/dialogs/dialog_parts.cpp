#include "host_defaults/dialogs/dialog_parts.h"

#include "host_defaults/dialogs/color_grid.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

namespace host_defaults {

QWidget* ParentForDialog()
{
    QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

QDialogButtonBox* AddButtons(QDialog& dialog)
{
    auto* const box = new QDialogButtonBox(&dialog);
    box->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole)->setDefault(true);
    box->addButton(QStringLiteral("Annulla"), QDialogButtonBox::RejectRole);
    QObject::connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return box;
}

QIcon ColorIcon(int index, int side)
{
    const qreal scale = qApp->devicePixelRatio();
    QPixmap picture(QSize(side, side) * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    PaintSwatch(painter, QRectF(0, 0, side, side), index);
    QIcon icon(picture);
    // The toolkit would tint the colour where a row is selected or a button disabled.
    icon.addPixmap(picture, QIcon::Selected);
    icon.addPixmap(picture, QIcon::Disabled);
    return icon;
}

} // namespace host_defaults
