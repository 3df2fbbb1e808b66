#include "uikit/native/combo_widget.h"

#include "uikit/native/access.h"
#include "uikit/native/image_icon.h"
#include "uikit/native/whole_text.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QLineEdit>
#include <QScreen>

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

void CComboWidget::showPopup()
{
    // Twice the frame: that of the list and that of the window that it lies in.
    const int frames = 4 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth);
    const int bar =
        count() > maxVisibleItems() ? style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
    const int widest = view()->sizeHintForColumn(0) + frames + bar;
    view()->setMinimumWidth(qMin(widest, screen()->availableGeometry().width()));
    QComboBox::showPopup();
}

void CComboWidget::initStyleOption(QStyleOptionComboBox* option) const
{
    QComboBox::initStyleOption(option);
    if (isEditable()) {
        return;
    }
    if (currentIndex() >= 0 && m_images.GetImageCount() > 0) {
        const CBitmap bitmap = m_images.Get(currentData(kSelectedImageRole).toInt());
        option->currentIcon = MakeImageIcon(ToNative(bitmap));
    }
    option->currentText =
        fontMetrics().elidedText(option->currentText, Qt::ElideRight, RoomForText(*option));
}

int CComboWidget::RoomForText(const QStyleOptionComboBox& option) const
{
    // What the style keeps free on both sides of the text, and behind a picture.
    constexpr int kMargins = 2;
    constexpr int kIconGap = 4;
    const int icon = option.currentIcon.isNull() ? 0 : option.iconSize.width() + kIconGap;
    return style()
               ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this)
               .width() -
           icon - kMargins;
}

bool CComboWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        QStyleOptionComboBox option;
        initStyleOption(&option);
        if (fontMetrics().horizontalAdvance(currentText()) > RoomForText(option)) {
            TellWholeText(*static_cast<QHelpEvent*>(event), *this, currentText());
            return true;
        }
    }
    return QComboBox::event(event);
}
