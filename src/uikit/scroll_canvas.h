#pragma once

#include "uikit/dc.h"
#include "uikit/wnd.h"

enum class ScrollAxis
{
    horizontal,
    vertical
};

/// What the user does to a scroll bar.
enum class ScrollAction
{
    lineBack,
    lineForward,
    pageBack,
    pageForward,
    toStart,
    toEnd,
    /// The thumb was dragged, or the wheel turned.
    thumb
};

/// A window in a sunken frame that shows a picture drawn in memory, and scroll bars that its class
/// decides about. Before Create() and after the window has gone every call does nothing and answers
/// with empty values.
class CScrollCanvas : public CWnd
{
public:
    CScrollCanvas() = default;
    /// May be destroyed before the window, which then raises nothing any more.
    ~CScrollCanvas() override;

    CScrollCanvas(const CScrollCanvas&) = delete;
    CScrollCanvas& operator=(const CScrollCanvas&) = delete;

    /// Width in pixels that a scroll bar takes of the area inside the frame.
    int GetScrollBarWidth() const;

protected:
    /// Makes the window at a place in the client area of `parent`, which owns it; hidden with
    /// styleHidden. False if there is no such parent or the window exists.
    bool CreateCanvas(unsigned style, const CRect& rect, const CWnd& parent);

    /// Shows a bar for a content of `size` pixels of which `page` show; a size of 0 removes it. The
    /// position becomes 0.
    void SetScrollBar(ScrollAxis axis, int size, int page);

    /// Shows a copy of the surface from now on.
    void Show(const CMemoryDC& surface);

    /// The user acts on a bar; `position` is where the thumb stands. Returns where it is to stand.
    /// Must not throw.
    virtual int OnScroll(ScrollAxis axis, ScrollAction action, int position) = 0;

private:
    class CScrollCanvasWidget* Widget() const;
};
