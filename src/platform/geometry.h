#pragma once

/// Places and sizes in pixels, or in dialog units where a declaration says so. Right and bottom of
/// a rectangle lie outside it.
struct CPoint
{
    int x = 0;
    int y = 0;

    friend bool operator==(const CPoint&, const CPoint&) = default;
};

struct CSize
{
    int cx = 0;
    int cy = 0;

    friend bool operator==(const CSize&, const CSize&) = default;
};

struct CRect
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    bool IsEmpty() const { return right <= left || bottom <= top; }
    bool Contains(CPoint p) const
    {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    CRect MovedBy(int dx, int dy) const { return {left + dx, top + dy, right + dx, bottom + dy}; }

    friend bool operator==(const CRect&, const CRect&) = default;
};
