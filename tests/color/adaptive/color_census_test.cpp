#include "color/adaptive/color_census.h"

#include <gtest/gtest.h>

#include "color/adaptive/counted_colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

CountedColors SortedColors(const ColorCensus& census) {
    CountedColors colors(census.Colors().begin(), census.Colors().end());
    std::ranges::sort(colors, {}, &ColorValues::Item::key);
    return colors;
}

void ExpectColors(const ColorCensus& census, const CountedColors& expected) {
    const CountedColors colors = SortedColors(census);
    ASSERT_EQ(colors.size(), expected.size());
    for (size_t i = 0; i < colors.size(); ++i) {
        EXPECT_EQ(colors[i].key, expected[i].key);
        EXPECT_EQ(colors[i].value, expected[i].value) << colors[i].key;
    }
}

}  // namespace

TEST(ColorCensus, CountsPixelsInEverySpaceAndKindOfStrip) {
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        ColorCensus few{AlphaMatte()};
        EXPECT_EQ(
            few.Add(*FramePictureOf(2, 2, {0xFF102030, 0xFF405060, 0xFF102030, 0xFF102030}, space)),
            B_OK);
        ExpectColors(few, {{0x102030, 3}, {0x405060, 1}});

        ColorCensus solid{AlphaMatte()};
        EXPECT_EQ(solid.Add(*FramePictureOf(3, 3, std::vector<uint32>(9, 0xFF0A0B0C), space)),
                  B_OK);
        ExpectColors(solid, {{0x0A0B0C, 9}});

        const std::vector<uint32> argb = PhotoPixels(64, 48);
        ColorCensus many{AlphaMatte()};
        EXPECT_EQ(many.Add(*FramePictureOf(64, 48, argb, space)), B_OK);
        ExpectColors(many, CountedColorsOf(argb));
    }
}

TEST(ColorCensus, CountsSeveralPicturesAsOne) {
    ColorCensus census{AlphaMatte()};
    EXPECT_EQ(census.Add(*FramePictureOf(2, 1, {0xFF000001, 0xFF000002})), B_OK);
    EXPECT_EQ(census.Add(*FramePictureOf(1, 2, {0xFF000002, 0xFF000003})), B_OK);
    ExpectColors(census, {{1, 1}, {2, 2}, {3, 1}});
}

TEST(ColorCensus, LeavesOutTransparentPixelsAndLaysTheOthersOnTheMatte) {
    ColorCensus census{AlphaMatte({200, 100, 0, 255})};
    EXPECT_FALSE(census.HasTransparent());
    EXPECT_EQ(census.Add(*FramePictureOf(4, 1, {0x7FFFFFFF, 0x00123456, 0x80000000, 0xFF123456})),
              B_OK);
    EXPECT_TRUE(census.HasTransparent());
    // 127 of 255 parts of the matte.
    ExpectColors(census, {{0x123456, 1}, {0x643200, 1}});
}

TEST(ColorCensus, LaysEverythingOnTheMatteWhereNothingIsCutOut) {
    ColorCensus census{AlphaMatte({255, 255, 255, 255}, false)};
    EXPECT_EQ(census.Add(*FramePictureOf(2, 1, {0x00123456, 0x33000000})), B_OK);
    EXPECT_FALSE(census.HasTransparent());
    ExpectColors(census, {{0xCCCCCC, 1}, {0xFFFFFF, 1}});
}

TEST(ColorCensus, StopsCountingAtTheLargestNumber) {
    const auto picture = Picture::Solid(0xFF010203, 65535, 65535, B_RGB32, nullptr);
    ASSERT_TRUE(picture);
    ColorCensus census{AlphaMatte()};
    EXPECT_EQ(census.Add(*picture), B_OK);
    EXPECT_EQ(census.Colors()[0].value, 4294836225U);
    EXPECT_EQ(census.Add(*picture), B_OK);
    EXPECT_EQ(census.Colors()[0].value, 4294967295U);
}

TEST(ColorCensus, RefusesPicturesThatAreNot32Bit) {
    const auto bitmap = std::make_shared<BBitmap>(BRect(0, 0, 3, 3), B_RGB24);
    ColorCensus census{AlphaMatte()};
    EXPECT_EQ(census.Add(*Picture::Of(bitmap)), B_BAD_TYPE);
    EXPECT_TRUE(census.Colors().empty());
}

TEST(ColorCensus, SaysWhenMemoryIsShortOrTheWorkIsStopped) {
    const auto picture = FramePictureOf(100, 100, PhotoPixels(100, 100));
    for (const int64 call : {1, 2, 3}) {
        const AllocationFault fault(call);
        ColorCensus census{AlphaMatte()};
        EXPECT_EQ(census.Add(*picture), B_NO_MEMORY) << call;
    }
    Work work;
    work.StopAll();
    ColorCensus census(AlphaMatte(), &work);
    EXPECT_EQ(census.Add(*picture), B_CANCELED);
}

}  // namespace kirto::test
