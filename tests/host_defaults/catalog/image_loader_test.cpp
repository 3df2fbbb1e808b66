#include "host/image_loader.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace {

constexpr std::array<int, 8> kIcons = {23, 24, 32, 33, 35, 36, 39, 42};

std::vector<std::uint8_t> Bytes(const CBitmap& bitmap)
{
    const std::ptrdiff_t pixels = std::ptrdiff_t{bitmap.GetWidth()} * bitmap.GetHeight();
    return {bitmap.GetData(), bitmap.GetData() + pixels * 4};
}

/// Pixels of the range of alpha.
int CountAlpha(const CBitmap& bitmap, int from, int to)
{
    int count = 0;
    for (int y = 0; y < bitmap.GetHeight(); ++y) {
        for (int x = 0; x < bitmap.GetWidth(); ++x) {
            count += bitmap.GetAlpha(x, y) >= from && bitmap.GetAlpha(x, y) <= to ? 1 : 0;
        }
    }
    return count;
}

TEST(ImageLoader, EveryIconIsAPictureOfItsOwnAtEverySize)
{
    const CImageLoader loader;
    for (const int side : {8, 16, 24, 48, 64}) {
        std::vector<std::vector<std::uint8_t>> seen;
        for (const int index : kIcons) {
            const CBitmap icon = loader.LoadLumoIcon(index, side, side);
            ASSERT_EQ(icon.GetWidth(), side);
            ASSERT_EQ(icon.GetHeight(), side);
            EXPECT_GT(CountAlpha(icon, 255, 255), side * side / 5) << index << " at " << side;
            EXPECT_GT(CountAlpha(icon, 0, 254), 0) << index << " at " << side;
            seen.push_back(Bytes(icon));
            for (std::size_t i = 0; i + 1 < seen.size(); ++i) {
                EXPECT_NE(seen[i], seen.back()) << index << " at " << side;
            }
        }
    }
}

TEST(ImageLoader, RoundShapesHaveSmoothEdges)
{
    EXPECT_GT(CountAlpha(CImageLoader().LoadLumoIcon(iconHilfe, 16, 16), 1, 254), 20);
}

TEST(ImageLoader, AnIconStandsInTheMiddleOfALongerPicture)
{
    const CImageLoader loader;
    const CBitmap square = loader.LoadLumoIcon(iconFirma, 16, 16);
    const CBitmap wide = loader.LoadLumoIcon(iconFirma, 24, 16);
    for (int y = 0; y < 16; ++y) {
        for (int x = 0; x < 24; ++x) {
            const bool inside = x >= 4 && x < 20;
            EXPECT_EQ(wide.GetAlpha(x, y), inside ? square.GetAlpha(x - 4, y) : 0);
        }
    }
}

TEST(ImageLoader, AnUnknownNumberOrSizeIsEmpty)
{
    const CImageLoader loader;
    for (const int index : {-1, 0, 25, 43, 1000}) {
        EXPECT_TRUE(loader.LoadLumoIcon(index, 16, 16).IsEmpty()) << index;
    }
    for (const int side : {-16, 0, 7, 65, 100000}) {
        EXPECT_TRUE(loader.LoadLumoIcon(iconHilfe, side, 16).IsEmpty()) << side;
        EXPECT_TRUE(loader.LoadLumoIcon(iconHilfe, 16, side).IsEmpty()) << side;
    }
}

} // namespace
