#include "platform/bitmap.h"

#include "platform/exception.h"

namespace {

constexpr int kLargestSide = 32767;
constexpr std::size_t kBytesPerPixel = 4;

bool IsSide(int size)
{
    return size >= 0 && size <= kLargestSide;
}

} // namespace

CBitmap::CBitmap(int width, int height) : m_width(width), m_height(height)
{
    if (!IsSide(width) || !IsSide(height)) {
        throw CInvalidArgException();
    }
    m_pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) *
                    kBytesPerPixel);
}

COLORREF CBitmap::GetPixel(int x, int y) const
{
    const std::uint8_t* const pixel = m_pixels.data() + Offset(x, y);
    return RGB(pixel[0], pixel[1], pixel[2]);
}

std::uint8_t CBitmap::GetAlpha(int x, int y) const
{
    return m_pixels[Offset(x, y) + 3];
}

void CBitmap::SetPixel(int x, int y, COLORREF color, std::uint8_t alpha)
{
    std::uint8_t* const pixel = m_pixels.data() + Offset(x, y);
    pixel[0] = GetRValue(color);
    pixel[1] = GetGValue(color);
    pixel[2] = GetBValue(color);
    pixel[3] = alpha;
}

void CBitmap::Fill(COLORREF color, std::uint8_t alpha)
{
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            SetPixel(x, y, color, alpha);
        }
    }
}

std::size_t CBitmap::Offset(int x, int y) const
{
    if (x < 0 || x >= m_width || y < 0 || y >= m_height) {
        throw CInvalidArgException();
    }
    const auto index = static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                       static_cast<std::size_t>(x);
    return index * kBytesPerPixel;
}
