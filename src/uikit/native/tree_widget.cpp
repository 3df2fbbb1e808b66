#include "uikit/native/tree_widget.h"

#include "uikit/native/access.h"
#include "uikit/native/image_icon.h"
#include "uikit/native/whole_text.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

CTreeWidget::CTreeWidget(QWidget* parent) : QTreeWidget(parent)
{
    setColumnCount(1);
    header()->hide();
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformRowHeights(true);
    setTabKeyNavigation(false);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &CTreeWidget::TellChoice);
}

void CTreeWidget::SetImages(const CImageList& images)
{
    m_images = images;
    m_icons.clear();
    if (!images.Get(0).IsEmpty()) {
        setIconSize({images.Get(0).GetWidth(), images.Get(0).GetHeight()});
    }
}

QIcon CTreeWidget::IconOf(int image, int selectedImage)
{
    const auto [found, isNew] = m_icons.try_emplace({image, selectedImage});
    if (isNew && !m_images.Get(image).IsEmpty()) {
        found->second =
            MakeImageIcon(ToNative(m_images.Get(image)), ToNative(m_images.Get(selectedImage)));
    }
    return found->second;
}

bool CTreeWidget::IsClosedParent(const QTreeWidgetItem* item) const
{
    return item != nullptr && item->childCount() > 0 && !item->isExpanded();
}

bool CTreeWidget::AskToOpen(QTreeWidgetItem* item)
{
    return !m_mayExpand || m_mayExpand(item);
}

void CTreeWidget::OpenItem(QTreeWidgetItem* item)
{
    if (IsClosedParent(item) && AskToOpen(item)) {
        item->setExpanded(true);
    }
}

void CTreeWidget::Choose(QTreeWidgetItem* item)
{
    if (item == nullptr) {
        setCurrentItem(nullptr);
        clearSelection();
        return;
    }
    QList<QTreeWidgetItem*> parents;
    for (QTreeWidgetItem* parent = item->parent(); parent != nullptr; parent = parent->parent()) {
        parents.prepend(parent);
    }
    bool shows = true;
    for (QTreeWidgetItem* parent : parents) {
        OpenItem(parent);
        shows = shows && parent->isExpanded();
    }
    // Scrolling to an item would open parents that are to stay closed.
    setAutoScroll(shows);
    setCurrentItem(item);
    setAutoScroll(true);
}

QTreeWidgetItem* CTreeWidget::Chosen() const
{
    const QList<QTreeWidgetItem*> chosen = selectedItems();
    return chosen.isEmpty() ? nullptr : chosen.first();
}

void CTreeWidget::DeleteItem(QTreeWidgetItem* item)
{
    for (QTreeWidgetItem* told = m_toldChoice; told != nullptr; told = told->parent()) {
        if (told == item) {
            m_toldChoice = nullptr;
            break;
        }
    }
    delete item;
}

void CTreeWidget::DeleteAll()
{
    const QSignalBlocker quiet(this);
    m_toldChoice = nullptr;
    clear();
}

void CTreeWidget::TellChoice()
{
    QTreeWidgetItem* chosen = Chosen();
    if (chosen != m_toldChoice) {
        m_toldChoice = chosen;
        emit ChoiceChanged(chosen);
    }
}

void CTreeWidget::mousePressEvent(QMouseEvent* event)
{
    QTreeWidgetItem* item = itemAt(event->pos());
    const int left = visualItemRect(item).left();
    const bool onExpander = event->button() == Qt::LeftButton && event->pos().x() < left &&
                            event->pos().x() >= left - indentation();
    if (onExpander && IsClosedParent(item)) {
        OpenItem(item);
        return;
    }
    QTreeWidget::mousePressEvent(event);
}

void CTreeWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    QTreeWidgetItem* item = itemAt(event->pos());
    if (event->button() == Qt::LeftButton && IsClosedParent(item)) {
        OpenItem(item);
        return;
    }
    QTreeWidget::mouseDoubleClickEvent(event);
}

void CTreeWidget::keyPressEvent(QKeyEvent* event)
{
    const bool opens = event->key() == Qt::Key_Right || event->key() == Qt::Key_Plus;
    if (opens && IsClosedParent(currentItem())) {
        OpenItem(currentItem());
        return;
    }
    // Opening all levels at once would open items that nobody was asked about.
    if (event->key() == Qt::Key_Asterisk) {
        OpenItem(currentItem());
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

/// The toolkit would make the first item current, and the first press of an arrow key would then
/// pass it by.
void CTreeWidget::focusInEvent(QFocusEvent* event)
{
    QAbstractScrollArea::focusInEvent(event); // NOLINT(bugprone-parent-virtual-call)
    viewport()->update();
}

bool CTreeWidget::IsCut(const QTreeWidgetItem& item) const
{
    const int left = visualItemRect(&item).left();
    return left < 0 || left + sizeHintForIndex(indexFromItem(&item)).width() > viewport()->width();
}

bool CTreeWidget::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto& help = *static_cast<QHelpEvent*>(event);
        const QTreeWidgetItem* const item = itemAt(help.pos());
        if (item != nullptr && IsCut(*item)) {
            TellWholeText(help, *viewport(), item->text(0), visualItemRect(item));
            return true;
        }
    }
    return QTreeWidget::viewportEvent(event);
}

/// Rows reach across the tree however short their texts are.
void CTreeWidget::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    header()->setMinimumSectionSize(viewport()->width());
}

/// One item stays chosen whatever is clicked: neither a click beside the items nor one with Ctrl
/// takes the choice away.
QItemSelectionModel::SelectionFlags CTreeWidget::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const
{
    const auto flags = QTreeWidget::selectionCommand(index, event);
    if (flags == QItemSelectionModel::NoUpdate || !index.isValid()) {
        return QItemSelectionModel::NoUpdate;
    }
    return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
}
