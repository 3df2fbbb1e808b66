#include "host/host_base.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

TEST(ColorPalette, HasTheColoursThatDrawingsMean)
{
    const std::pair<int, COLORREF> known[] = {
        {1, RGB(255, 0, 0)},       {2, RGB(255, 255, 0)},     {3, RGB(0, 255, 0)},
        {4, RGB(0, 255, 255)},     {5, RGB(0, 0, 255)},       {6, RGB(255, 0, 255)},
        {7, RGB(255, 255, 255)},   {8, RGB(128, 128, 128)},   {9, RGB(192, 192, 192)},
        {10, RGB(255, 0, 0)},      {11, RGB(255, 127, 127)},  {12, RGB(165, 0, 0)},
        {13, RGB(165, 82, 82)},    {18, RGB(38, 0, 0)},       {19, RGB(38, 19, 19)},
        {21, RGB(255, 159, 127)},  {30, RGB(255, 127, 0)},    {62, RGB(124, 165, 0)},
        {24, RGB(127, 31, 0)},     {48, RGB(38, 28, 0)},      {90, RGB(0, 255, 0)},
        {150, RGB(0, 127, 255)},   {210, RGB(255, 0, 255)},   {240, RGB(255, 0, 63)},
        {250, RGB(51, 51, 51)},    {251, RGB(91, 91, 91)},    {252, RGB(132, 132, 132)},
        {253, RGB(173, 173, 173)}, {254, RGB(214, 214, 214)}, {255, RGB(255, 255, 255)},
        {0, RGB(0, 0, 0)},         {256, RGB(0, 0, 0)},       {-1, RGB(0, 0, 0)}};
    for (const auto& [index, color] : known) {
        EXPECT_EQ(GetRGBFromColor(index), color) << index;
    }
}

} // namespace
