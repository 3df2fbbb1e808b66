#pragma once

#include "platform/bitmap.h"
#include "uikit/wnd.h"

/// A button, check box or radio button.
class CButton : public CWnd
{
public:
    CButton() = default;
    explicit CButton(const CWnd& wnd) : CWnd(wnd) {}

    bool GetCheck() const;
    /// Raises no event.
    void SetCheck(bool check);
    void SetIcon(const CBitmap& icon);
};
