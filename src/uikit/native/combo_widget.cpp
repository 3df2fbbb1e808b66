#include "uikit/native/combo_widget.h"

#include "uikit/native/access.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QSignalBlocker>
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

int CComboWidget::AddText(const QString& text)
{
    int place = count();
    if (m_sorted) {
        place = 0;
        while (place < count() && itemText(place).compare(text, Qt::CaseInsensitive) <= 0) {
            ++place;
        }
    }
    return Insert(place, text);
}

int CComboWidget::AddItem(const QString& text, int image, int selectedImage)
{
    const int place = Insert(count(), text);
    setItemData(place, image, kImageRole);
    setItemData(place, selectedImage, kSelectedImageRole);
    ShowImages(place);
    return place;
}

/// The toolkit chooses the first item that is added by itself; a list here shows nothing until an
/// item is chosen, and an edit keeps its text.
int CComboWidget::Insert(int index, const QString& text)
{
    const QSignalBlocker quiet(this);
    const bool nothingChosen = currentIndex() < 0;
    const QString edited = isEditable() ? lineEdit()->text() : QString();
    insertItem(index, text);
    if (nothingChosen) {
        setCurrentIndex(-1);
        if (isEditable()) {
            lineEdit()->setText(edited);
        }
    }
    update();
    return index;
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
    setItemIcon(index, QIcon(QPixmap::fromImage(ToNative(bitmap))));
}

bool CComboWidget::DeleteItem(int index)
{
    if (index < 0 || index >= count()) {
        return false;
    }
    const QSignalBlocker quiet(this);
    const bool chosen = index == currentIndex();
    const QString edited = isEditable() ? lineEdit()->text() : QString();
    if (chosen) {
        setCurrentIndex(-1);
    }
    const bool nothingChosen = currentIndex() < 0;
    removeItem(index);
    if (nothingChosen) {
        setCurrentIndex(-1);
    }
    if (isEditable() && nothingChosen) {
        lineEdit()->setText(edited);
    }
    update();
    return true;
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
    option.currentIcon = QIcon(QPixmap::fromImage(ToNative(bitmap)));
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void CComboWidget::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    const bool goesToAnotherControl =
        event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason;
    if (goesToAnotherControl) {
        emit FocusLost();
    }
}
