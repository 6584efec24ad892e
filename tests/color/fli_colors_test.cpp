#include "color/fli_colors.h"

#include <gtest/gtest.h>
#include <vector>

namespace kirto::test {
namespace {

ColorTable TableOf(const std::vector<uint8>& data, int32 factor = 1) {
    ColorTable colors{};
    ReadFliColors(data, factor, &colors);
    return colors;
}

TEST(FliColors, FillTheEntriesBehindThoseSkipped) {
    const ColorTable colors = TableOf({2, 0, 1, 1, 10, 20, 30, 2, 1, 40, 50, 60});
    EXPECT_EQ(colors[0], (rgb_color{}));
    EXPECT_EQ(colors[1], (rgb_color{10, 20, 30, 255}));
    EXPECT_EQ(colors[4], (rgb_color{40, 50, 60, 255}));
}

TEST(FliColors, KeepTheLowByteOfAMultipliedComponent) {
    const ColorTable colors = TableOf({1, 0, 0, 1, 63, 64, 65}, 4);
    EXPECT_EQ(colors[0], (rgb_color{252, 0, 4, 255}));
}

TEST(FliColors, WidenSixBitsToTheFullRange) {
    ColorTable colors{};
    ReadFliColors(std::vector<uint8>{1, 0, 0, 1, 63, 32, 1}, 4, &colors, true);
    EXPECT_EQ(colors[0], (rgb_color{255, 130, 4, 255}));
}

TEST(FliColors, EndWithTheDataInsideAColour) {
    const ColorTable colors = TableOf({1, 0, 0, 2, 1, 2, 3, 4, 5});
    EXPECT_EQ(colors[0], (rgb_color{1, 2, 3, 255}));
    EXPECT_EQ(colors[1], (rgb_color{}));
}

TEST(FliColors, DropWhatLiesPastTheLastEntry) {
    std::vector<uint8> data = {2, 0, 255, 2, 1, 2, 3, 4, 5, 6, 0, 1, 7, 8, 9};
    const ColorTable colors = TableOf(data);
    EXPECT_EQ(colors[255], (rgb_color{1, 2, 3, 255}));
    EXPECT_EQ(colors[0], (rgb_color{}));
}

}  // namespace
}  // namespace kirto::test
