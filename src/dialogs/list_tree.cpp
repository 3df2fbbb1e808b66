#include "dialogs/list_tree.h"

#include "uikit/text_case.h"

namespace {

bool IsWordEnd(const CString& text, std::size_t place)
{
    return place >= text.size() || (!IsLetter(text[place]) && text[place] != L'_');
}

bool HoldsWord(CString text, const CString& word)
{
    for (std::size_t place = text.find(word); place != CString::npos; place = text.find(word)) {
        if (place == 0 && IsWordEnd(text, word.size())) {
            return true;
        }
        text.erase(0, place + word.size());
    }
    return false;
}

bool Hits(const CString& itemText, const CString& text, const TreeSearch& search)
{
    const CString seen = search.caseSensitive ? itemText : LowerCase(itemText);
    const CString wanted = search.caseSensitive ? text : LowerCase(text);
    const bool holds =
        search.wholeWord ? HoldsWord(seen, wanted) : seen.find(wanted) != CString::npos;
    return holds && (!search.exactLength || itemText.size() == text.size());
}

HTREEITEM LastRoot(const CTreeCtrl& tree)
{
    HTREEITEM item = tree.GetRootItem();
    while (HTREEITEM next = tree.GetNextSiblingItem(item)) {
        item = next;
    }
    return item;
}

HTREEITEM DeepestLast(const CTreeCtrl& tree, HTREEITEM item)
{
    while (HTREEITEM child = tree.GetChildItem(item)) {
        while (HTREEITEM next = tree.GetNextSiblingItem(child)) {
            child = next;
        }
        item = child;
    }
    return item;
}

HTREEITEM NextItem(const CTreeCtrl& tree, HTREEITEM item)
{
    if (HTREEITEM child = tree.GetChildItem(item)) {
        return child;
    }
    for (; item != nullptr; item = tree.GetParentItem(item)) {
        if (HTREEITEM next = tree.GetNextSiblingItem(item)) {
            return next;
        }
    }
    return tree.GetRootItem();
}

HTREEITEM PrevItem(const CTreeCtrl& tree, HTREEITEM item)
{
    if (HTREEITEM before = tree.GetPrevSiblingItem(item)) {
        return DeepestLast(tree, before);
    }
    HTREEITEM parent = tree.GetParentItem(item);
    return parent != nullptr ? parent : DeepestLast(tree, LastRoot(tree));
}

} // namespace

HTREEITEM FindTreeItem(const CString& text, const CTreeCtrl& tree, const TreeSearch& search,
                       HTREEITEM start)
{
    if (text.empty() || tree.GetRootItem() == nullptr) {
        return nullptr;
    }
    HTREEITEM from = start != nullptr ? start : tree.GetSelectedItem();
    HTREEITEM item = from;
    for (int steps = tree.GetCount(); steps > 0; --steps) {
        if (item == nullptr) {
            item = tree.GetRootItem();
        } else {
            item = search.forward ? NextItem(tree, item) : PrevItem(tree, item);
        }
        if (item == from) {
            return nullptr;
        }
        if (Hits(tree.GetItemText(item), text, search)) {
            return item;
        }
    }
    return nullptr;
}

COLORREF GetFixedColor(unsigned index)
{
    switch (index) {
    case 1:
        return RGB(51, 102, 153);
    case 2:
        return RGB(255, 255, 0);
    case 4:
        return RGB(255, 0, 0);
    case 5:
        return RGB(0, 0, 0);
    case 6:
        return RGB(183, 207, 192);
    case 7:
        return RGB(254, 254, 200);
    case 8:
        return RGB(0, 255, 255);
    case 20:
        return RGB(220, 220, 220);
    case 21:
        return RGB(240, 240, 240);
    default:
        return RGB(255, 255, 255);
    }
}

void SetExplorerTheme(CTreeCtrl& tree)
{
    tree.SetExplorerLook();
}

bool SetWindowAlpha(CWnd& window, int alpha)
{
    return window.SetAlpha(alpha);
}
