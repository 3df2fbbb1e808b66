#pragma once

#include "platform/color.h"
#include "platform/text.h"
#include "uikit/tree_ctrl.h"
#include "uikit/wnd.h"

/// How FindTreeItem() looks for a text.
struct TreeSearch
{
    bool caseSensitive = false;
    bool forward = true;
    /// Counts an occurrence only at the start of what remains of an item's text, and only before
    /// the end or a character that is neither a letter nor "_". An occurrence further on never
    /// counts itself: what stands before its end is cut off and the search goes on behind it.
    bool wholeWord = false;
    /// Counts a hit only in an item whose text is as long as the one looked for.
    bool exactLength = false;
};

/// First item whose text holds `text`, depth first from behind `start`, or else from behind the
/// selected item, and around the end of the tree; the item begun from is not looked at. With
/// neither, the walk begins with the first root item. Null if there is none or the text is empty.
HTREEITEM FindTreeItem(const CString& text, const CTreeCtrl& tree, const TreeSearch& search,
                       HTREEITEM start);

/// The fixed colours of the dialogs by index; white for any that is not in use.
COLORREF GetFixedColor(unsigned index);

/// Gives a tree the look of the system's explorer.
void SetExplorerTheme(CTreeCtrl& tree);

/// Makes a window translucent; 255 is opaque. False if that cannot be done.
bool SetWindowAlpha(CWnd& window, int alpha);
