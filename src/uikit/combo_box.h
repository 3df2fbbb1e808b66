#pragma once

#include "platform/array.h"
#include "uikit/image_list.h"
#include "uikit/wnd.h"

/// A drop-down list or an editable one. Indices count from 0; -1 stands for none. Changes made in
/// code raise no event.
class CComboBox : public CWnd
{
public:
    /// Adds a text, at the end or where a sorted list has it, and returns its index.
    int AddString(const CString& text);
    /// Has these texts and no others, in the order in which AddString() would leave them, and none
    /// chosen; an edit keeps its text. Takes thousands at once, where each takes the longer the
    /// more there are.
    void FillWith(const CStringArray& texts);
    /// Adds a text with pictures of the image list at the end: `image` in the open list,
    /// `selectedImage` in the closed one.
    int AddItem(const CString& text, int image, int selectedImage);
    void SetImageList(const CImageList& images);

    /// Deletes an item; false if there is none at that index. Deleting the chosen one leaves
    /// nothing chosen.
    bool DeleteString(int index);
    void ResetContent();

    int GetCount() const;
    /// Empty outside the list.
    CString GetItemText(int index) const;

    int GetCurSel() const;
    /// Chooses an item; an index outside the list chooses none.
    void SetCurSel(int index);

    /// First item from `start` on, and around, that begins with `prefix`, without regard to case;
    /// -1 if none does.
    int FindString(int start, const CString& prefix) const;
};
