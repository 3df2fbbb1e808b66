#pragma once

#include "uikit/image_list.h"
#include "uikit/tree_item.h"
#include "uikit/wnd.h"

#include <cstdint>

/// A tree of texts with pictures.
class CTreeCtrl : public CWnd
{
public:
    /// The pictures that items name by index.
    void SetImageList(const CImageList& images);

    /// Adds an item behind its siblings; a null parent is the root. `image` stands for the item,
    /// `selectedImage` while it is selected; -1 for none.
    HTREEITEM InsertItem(const CString& text, int image, int selectedImage, HTREEITEM parent);

    void SetItemData(HTREEITEM item, std::intptr_t data);
    /// 0 until it is set.
    std::intptr_t GetItemData(HTREEITEM item) const;
    CString GetItemText(HTREEITEM item) const;

    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const;
    HTREEITEM GetParentItem(HTREEITEM item) const;
    bool ItemHasChildren(HTREEITEM item) const { return GetChildItem(item) != nullptr; }
    /// Items on all levels.
    int GetCount() const;

    HTREEITEM GetSelectedItem() const;
    /// Selects an item, opening its parents, or none. Raises treeSelectionChanged if that is
    /// another one than before.
    void SelectItem(HTREEITEM item);
    /// Opens an item that has children, after treeItemExpanding.
    void Expand(HTREEITEM item);
    bool IsExpanded(HTREEITEM item) const;

    void DeleteItem(HTREEITEM item);
    /// Raises no event.
    void DeleteAllItems();

    /// The selection takes the whole row, and rows light up under the mouse. There are no lines in
    /// any tree, and openings are not faded.
    void SetExplorerLook();
};
