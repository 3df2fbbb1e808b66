#pragma once

#include "uikit/image_list.h"

#include <QTreeWidget>

#include <functional>

/// A tree that asks before an item opens, by whatever way.
class CTreeWidget : public QTreeWidget
{
    Q_OBJECT

public:
    explicit CTreeWidget(QWidget* parent);

    /// Asked before an item opens; false keeps it closed.
    using MayExpand = std::function<bool(QTreeWidgetItem*)>;
    void SetMayExpand(MayExpand mayExpand) { m_mayExpand = std::move(mayExpand); }

    void SetImages(const CImageList& images);
    QIcon MakeIcon(int image, int selectedImage) const;

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
    void resizeEvent(QResizeEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;

private:
    bool IsClosedParent(const QTreeWidgetItem* item) const;
    bool AskToOpen(QTreeWidgetItem* item);
    void TellChoice();

    MayExpand m_mayExpand;
    CImageList m_images;
    QTreeWidgetItem* m_toldChoice = nullptr;
};
