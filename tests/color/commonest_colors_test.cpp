#include "color/commonest_colors.h"

#include <gtest/gtest.h>
#include <vector>

namespace kirto::test {

namespace {

std::vector<uint32> CommonestOf(size_t size, const std::vector<ColorValues::Item>& colors) {
    CommonestColors commonest(size);
    for (const ColorValues::Item& color : colors)
        commonest.Add(color);
    std::vector<uint32> keys(size);
    keys.resize(commonest.Keys(keys.data()));
    return keys;
}

}  // namespace

TEST(CommonestColors, ComeInFallingOrder) {
    EXPECT_EQ(CommonestOf(4, {{1, 5}, {2, 9}, {3, 7}}), (std::vector<uint32>{2, 3, 1}));
}

TEST(CommonestColors, AreNoMoreThanAskedFor) {
    EXPECT_EQ(CommonestOf(2, {{1, 5}, {2, 9}, {3, 7}}), (std::vector<uint32>{2, 3}));
}

TEST(CommonestColors, AreOrderedByGreenAndBlueThenAsTheyCame) {
    EXPECT_EQ(CommonestOf(4, {{0x050203, 1}, {0x010300, 1}, {0x020203, 1}, {0x090202, 1}}),
              (std::vector<uint32>{0x090202, 0x050203, 0x020203, 0x010300}));
}

TEST(CommonestColors, KeepTheEarlierOfEqualsAlsoWhenThereAreMany) {
    std::vector<ColorValues::Item> colors;
    for (uint32 red = 0; red < 250; ++red)
        colors.push_back({(red * 7 % 251) << 16, 3});

    EXPECT_EQ(CommonestOf(2, colors), (std::vector<uint32>{0, 7 << 16}));
}

TEST(CommonestColors, AreNoneWithoutColors) {
    EXPECT_TRUE(CommonestOf(2, {}).empty());
}

TEST(CommonestColors, AreNotReadyWithoutMemory) {
    const AllocationFault fault(1);

    EXPECT_FALSE(CommonestColors(2).Ready());
}

}  // namespace kirto::test
