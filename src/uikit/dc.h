#pragma once

#include "platform/bitmap.h"
#include "platform/color.h"
#include "platform/geometry.h"
#include "platform/text.h"
#include "uikit/font.h"
#include "uikit/wnd.h"

#include <memory>
#include <vector>

struct CNativeSurface;

/// A surface to draw on. Coordinates are pixels from the left top corner.
class CDC
{
public:
    virtual ~CDC();
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    CSize GetSize() const;

    /// Solid pen for lines and outlines.
    void SetPen(COLORREF color, int width);
    void Line(CPoint from, CPoint to);
    void Polyline(const std::vector<CPoint>& points);
    /// Outline with the pen, its right and bottom line lying inside the rectangle.
    void Rectangle(const CRect& rect);
    void FillRect(const CRect& rect, COLORREF color);
    /// Gradient from the top to the bottom of the rectangle.
    void FillGradient(const CRect& rect, COLORREF top, COLORREF bottom);
    /// Frame of the dotted kind that marks the focus.
    void DrawFocusRect(const CRect& rect);

    /// Text on what is there. `escapement` turns it counter-clockwise around `at`, in tenths of a
    /// degree; `at` is the left end of the line's top.
    void TextOut(CPoint at, const CString& text, const CFont& font, COLORREF color,
                 int escapement = 0);

    void DrawBitmap(CPoint at, const CBitmap& bitmap);
    /// Copies another surface to this one, its corner at `at`.
    void BitBlt(CPoint at, const CDC& source);

    /// Takes a rectangle out of what further drawing reaches.
    void ExcludeClipRect(const CRect& rect);

protected:
    explicit CDC(std::unique_ptr<CNativeSurface> surface);
    friend struct CNativeAccess;
    std::unique_ptr<CNativeSurface> m_surface;
};

/// Draws on a control of kind canvas. What is drawn stays until the control is invalidated or
/// changes its size.
class CClientDC : public CDC
{
public:
    explicit CClientDC(const CWnd& canvas);
};

/// Draws on memory, to be copied to another surface.
class CMemoryDC : public CDC
{
public:
    explicit CMemoryDC(CSize size);

    /// False if there is no memory for a surface of that size; nothing can be drawn on it then.
    bool IsReady() const;
};
