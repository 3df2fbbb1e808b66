#pragma once

#include "platform/geometry.h"
#include "platform/text.h"
#include "uikit/font.h"

#include <memory>

struct CNativeRef;

/// A handle to a window or control. Copies name the same window, which its dialog owns; a handle
/// whose window has gone, or never was, does nothing and answers with empty values.
class CWnd
{
public:
    CWnd() = default;
    virtual ~CWnd();
    CWnd(const CWnd&) = default;
    CWnd(CWnd&&) noexcept = default;
    CWnd& operator=(const CWnd&) = default;
    CWnd& operator=(CWnd&&) noexcept = default;

    /// True if the window exists.
    bool IsWindow() const;

    /// Text of an edit or label, caption of a button, a group box or a dialog. Writing a text that
    /// differs from the one held raises the change event of an edit; writing an equal one does not.
    void SetWindowText(const CString& text);
    CString GetWindowText() const;

    void EnableWindow(bool enable);
    void ShowWindow(bool show);
    /// True if neither the control itself nor its dialog is hidden.
    bool IsWindowVisible() const;

    /// Area inside the frame, its left top corner being 0, 0. For a dialog that is the area below
    /// the caption bar.
    CRect GetClientRect() const;
    /// The whole window on the screen, of a dialog with what a small screen scrolls to.
    CRect GetWindowRect() const;
    /// Place of a control in its dialog's client area.
    CRect GetPlace() const;
    /// Moves a control within its dialog's client area; a dialog on the screen, within the sizes
    /// that it allows.
    void MoveWindow(const CRect& rect);

    void SetFocus();

    void SetFont(const CFont& font);

    /// Asks for painting at the next opportunity.
    void Invalidate();

    /// Suspends painting during bulk changes; true resumes and paints everything.
    void SetRedraw(bool redraw);

    /// Opacity of the whole window, 0 to 255; 255 is opaque. False if there is no window.
    bool SetAlpha(int alpha);
    int GetAlpha() const;

protected:
    friend struct CNativeAccess;
    std::shared_ptr<CNativeRef> m_native;
};
