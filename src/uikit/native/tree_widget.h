#pragma once

#include "uikit/image_list.h"

#include <QTreeWidget>

#include <functional>
#include <map>
#include <utility>

/// A tree that asks before an item opens, by whatever way, and tells as a tooltip the whole text of
/// an item that reaches beyond its sides.
class CTreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit CTreeWidget(QWidget* parent);

    /// Asked before an item opens; false keeps it closed.
    using MayExpand = std::function<bool(QTreeWidgetItem*)>;
    void SetMayExpand(MayExpand mayExpand) { m_mayExpand = std::move(mayExpand); }

    void SetImages(const CImageList& images);
    /// The icon of an item with these images of the list, made once for all items.
    QIcon IconOf(int image, int selectedImage);

    void OpenItem(QTreeWidgetItem* item);
    void Choose(QTreeWidgetItem* item);
    QTreeWidgetItem* Chosen() const;
    void DeleteItem(QTreeWidgetItem* item);
    void DeleteAll();

signals:
    void ChoiceChanged(QTreeWidgetItem* item);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    bool IsClosedParent(const QTreeWidgetItem* item) const;
    bool AskToOpen(QTreeWidgetItem* item);
    void TellChoice();
    bool IsCut(const QTreeWidgetItem& item) const;

    MayExpand m_mayExpand;
    CImageList m_images;
    std::map<std::pair<int, int>, QIcon> m_icons;
    QTreeWidgetItem* m_toldChoice = nullptr;
};
