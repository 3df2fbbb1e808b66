#pragma once

#include "platform/bitmap.h"
#include "uikit/scroll_canvas.h"

#include <optional>

/// Shows a picture at its own size, with scroll bars where it is larger than the control. What
/// shows is composed in memory once per change, so that painting is one copy.
class CBitmapCtrl : public CScrollCanvas
{
public:
    /// Makes the control, grey, at a place in the client area of `parent`; `style` is styleNone or
    /// styleHidden. False if there is no such parent or the control exists.
    bool Create(unsigned style, const CRect& rect, const CWnd& parent);

    /// Shows a picture from its left top corner, or the text "File not found." for null. The
    /// picture stays the caller's and must live until another one is set.
    void SetBitmap(const CBitmap* bitmap);

    /// Shows the picture in a BMP, PNG or JPEG file. One that cannot be read counts as null.
    void LoadFile(const CString& path);

    /// The area that shows the picture: inside the frame, less the scroll bars.
    const CRect& GetPictureRect() const { return m_client; }

protected:
    int OnScroll(ScrollAxis axis, ScrollAction action, int position) override;

private:
    bool Leere();
    void Zeichne();

    CRect m_client;
    int m_balkenBreite = 0;
    int m_ScrollX = 0;
    int m_ScrollY = 0;
    int m_BildBreite = 0;
    int m_BildHoehe = 0;
    const CBitmap* m_pBitmap = nullptr;
    std::optional<CMemoryDC> m_speicher;
    /// What LoadFile() read.
    CBitmap m_geladen;
};
