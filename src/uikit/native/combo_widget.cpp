#include "uikit/native/combo_widget.h"

#include "uikit/native/access.h"
#include "uikit/native/image_icon.h"

#include <QLineEdit>
#include <QStylePainter>

namespace {

constexpr int kImageRole = Qt::UserRole;
constexpr int kSelectedImageRole = Qt::UserRole + 1;
constexpr int kMostRowsShown = 16;

} // namespace

CComboWidget::CComboWidget(QWidget* parent, bool editable, bool sorted)
    : QComboBox(parent), m_sorted(sorted)
{
    setEditable(editable);
    setInsertPolicy(QComboBox::NoInsert);
    setMaxVisibleItems(kMostRowsShown);
    if (editable) {
        setCompleter(nullptr);
        // The toolkit would choose an item whose text was typed, which is no choice of the user's.
        disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
        disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
    }
}

void CComboWidget::SetImagesOf(int index, int image, int selectedImage)
{
    setItemData(index, image, kImageRole);
    setItemData(index, selectedImage, kSelectedImageRole);
    ShowImages(index);
}

void CComboWidget::SetImages(const CImageList& images)
{
    m_images = images;
    if (!images.Get(0).IsEmpty()) {
        setIconSize({images.Get(0).GetWidth(), images.Get(0).GetHeight()});
    }
    for (int i = 0; i < count(); ++i) {
        ShowImages(i);
    }
}

void CComboWidget::ShowImages(int index)
{
    const CBitmap bitmap = m_images.Get(itemData(index, kImageRole).toInt());
    setItemIcon(index, MakeImageIcon(ToNative(bitmap)));
}

void CComboWidget::paintEvent(QPaintEvent* event)
{
    if (isEditable() || currentIndex() < 0 || m_images.GetImageCount() == 0) {
        QComboBox::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const CBitmap bitmap = m_images.Get(currentData(kSelectedImageRole).toInt());
    option.currentIcon = MakeImageIcon(ToNative(bitmap));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
