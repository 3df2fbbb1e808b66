#pragma once

#include "platform/color.h"
#include "platform/export.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// A picture in memory: rows from top to bottom, four bytes a pixel in the order red, green, blue,
/// alpha (255 is opaque). A value.
class CBitmap
{
public:
    /// An empty picture of 0 x 0.
    CBitmap() = default;

    /// A picture of the given size, transparent black. A size below 0 or above 32767 in either
    /// direction raises CInvalidArgException.
    CBitmap(int width, int height);

    int GetWidth() const { return m_width; }
    int GetHeight() const { return m_height; }
    bool IsEmpty() const { return m_pixels.empty(); }

    /// One pixel; a place outside the picture raises CInvalidArgException.
    COLORREF GetPixel(int x, int y) const;
    std::uint8_t GetAlpha(int x, int y) const;
    void SetPixel(int x, int y, COLORREF color, std::uint8_t alpha = 255);

    /// Sets every pixel.
    void Fill(COLORREF color, std::uint8_t alpha = 255);

    /// The pixel bytes, GetWidth() * 4 a row without gaps.
    const std::uint8_t* GetData() const { return m_pixels.data(); }
    std::uint8_t* GetData() { return m_pixels.data(); }

private:
    std::size_t Offset(int x, int y) const;

    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint8_t> m_pixels;
};
