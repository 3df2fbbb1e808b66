#include "uikit/tree_ctrl.h"

#include "uikit/native/access.h"
#include "uikit/native/explorer_style.h"
#include "uikit/native/tree_widget.h"

#include <QTreeWidgetItemIterator>

namespace {

constexpr int kDataRole = Qt::UserRole;

CTreeWidget* Widget(const CWnd& wnd)
{
    return CNativeAccess::As<CTreeWidget>(wnd);
}

QTreeWidgetItem* Native(HTREEITEM item)
{
    return reinterpret_cast<QTreeWidgetItem*>(item);
}

HTREEITEM Handle(QTreeWidgetItem* item)
{
    return reinterpret_cast<HTREEITEM>(item);
}

/// Sibling of an item by its distance in places; null outside.
HTREEITEM Sibling(HTREEITEM handle, int distance)
{
    QTreeWidgetItem* item = Native(handle);
    if (item == nullptr || item->treeWidget() == nullptr) {
        return nullptr;
    }
    QTreeWidgetItem* parent =
        item->parent() != nullptr ? item->parent() : item->treeWidget()->invisibleRootItem();
    return Handle(parent->child(parent->indexOfChild(item) + distance));
}

} // namespace

void CTreeCtrl::SetImageList(const CImageList& images)
{
    if (CTreeWidget* tree = Widget(*this)) {
        tree->SetImages(images);
    }
}

HTREEITEM CTreeCtrl::InsertItem(const CString& text, int image, int selectedImage, HTREEITEM parent)
{
    CTreeWidget* tree = Widget(*this);
    if (tree == nullptr) {
        return nullptr;
    }
    auto* item = new QTreeWidgetItem({ToNative(text)});
    item->setIcon(0, tree->IconOf(image, selectedImage));
    (parent != nullptr ? Native(parent) : tree->invisibleRootItem())->addChild(item);
    return Handle(item);
}

void CTreeCtrl::SetItemData(HTREEITEM item, std::intptr_t data)
{
    if (item != nullptr) {
        Native(item)->setData(0, kDataRole, QVariant::fromValue<qlonglong>(data));
    }
}

std::intptr_t CTreeCtrl::GetItemData(HTREEITEM item) const
{
    return item != nullptr
               ? static_cast<std::intptr_t>(Native(item)->data(0, kDataRole).toLongLong())
               : 0;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const
{
    return item != nullptr ? FromNative(Native(item)->text(0)) : CString();
}

HTREEITEM CTreeCtrl::GetRootItem() const
{
    const CTreeWidget* tree = Widget(*this);
    return tree != nullptr ? Handle(tree->topLevelItem(0)) : nullptr;
}

HTREEITEM CTreeCtrl::GetChildItem(HTREEITEM item) const
{
    return item != nullptr ? Handle(Native(item)->child(0)) : nullptr;
}

HTREEITEM CTreeCtrl::GetNextSiblingItem(HTREEITEM item) const
{
    return Sibling(item, 1);
}

HTREEITEM CTreeCtrl::GetPrevSiblingItem(HTREEITEM item) const
{
    return Sibling(item, -1);
}

HTREEITEM CTreeCtrl::GetParentItem(HTREEITEM item) const
{
    return item != nullptr ? Handle(Native(item)->parent()) : nullptr;
}

int CTreeCtrl::GetCount() const
{
    int count = 0;
    if (CTreeWidget* tree = Widget(*this)) {
        for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item) {
            ++count;
        }
    }
    return count;
}

HTREEITEM CTreeCtrl::GetSelectedItem() const
{
    const CTreeWidget* tree = Widget(*this);
    return tree != nullptr ? Handle(tree->Chosen()) : nullptr;
}

void CTreeCtrl::SelectItem(HTREEITEM item)
{
    if (CTreeWidget* tree = Widget(*this)) {
        tree->Choose(Native(item));
    }
}

void CTreeCtrl::Expand(HTREEITEM item)
{
    if (CTreeWidget* tree = Widget(*this)) {
        tree->OpenItem(Native(item));
    }
}

bool CTreeCtrl::IsExpanded(HTREEITEM item) const
{
    return item != nullptr && Native(item)->isExpanded();
}

void CTreeCtrl::DeleteItem(HTREEITEM item)
{
    CTreeWidget* tree = Widget(*this);
    if (tree != nullptr && item != nullptr) {
        tree->DeleteItem(Native(item));
    }
}

void CTreeCtrl::DeleteAllItems()
{
    if (CTreeWidget* tree = Widget(*this)) {
        tree->DeleteAll();
    }
}

void CTreeCtrl::SetExplorerLook()
{
    CTreeWidget* tree = Widget(*this);
    if (tree != nullptr && qobject_cast<CExplorerStyle*>(tree->style()) == nullptr) {
        auto* style = new CExplorerStyle;
        style->setParent(tree);
        tree->setStyle(style);
        tree->viewport()->setAttribute(Qt::WA_Hover);
    }
}
