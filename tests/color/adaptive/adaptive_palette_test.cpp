#include "color/adaptive/adaptive_palette.h"

#include <gtest/gtest.h>

#include "color/adaptive/counted_colors.h"
#include "color/palette.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

std::vector<rgb_color> Entries(const CountedColors& colors, int32 entries,
                               const std::vector<rgb_color>& exact = {}) {
    AdaptivePalette palette;
    EXPECT_EQ(palette.Make(colors, entries, exact), B_OK);
    return {palette.Colors().begin(), palette.Colors().end()};
}

// The commonest colors of the same pixels.
std::vector<rgb_color> Commonest(const CountedColors& colors) {
    std::vector<uint32> argb;
    for (const ColorValues::Item& item : colors)
        argb.insert(argb.end(), item.value, 0xFF000000 | item.key);
    Palette palette;
    return palette
        .MakeNearestColorPalette(FramePictureOf(static_cast<int32>(argb.size()), 1, argb).get())
        .value();
}

void ExpectBetterThanTheCommonest(const CountedColors& colors) {
    const double error = SquaredError(colors, Entries(colors, 256));
    EXPECT_LE(error, SquaredError(colors, Commonest(colors))) << colors.size() << " colors";
}

}  // namespace

TEST(AdaptivePalette, IsTheColorsThemselvesWhereTheyFit) {
    for (const size_t count : {1U, 2U, 16U, 255U, 256U}) {
        const CountedColors colors = RandomCountedColors(count, 1);
        std::vector<rgb_color> expected;
        for (const ColorValues::Item& item : colors)
            expected.push_back(ColorOfKey(item.key));
        AdaptivePalette palette;

        ASSERT_EQ(palette.Make(colors, static_cast<int32>(count)), B_OK);

        EXPECT_TRUE(std::ranges::equal(palette.Colors(), expected)) << count;
        EXPECT_TRUE(palette.IsLossless()) << count;
    }
}

TEST(AdaptivePalette, IsNotLosslessWithAColorMoreThanEntries) {
    const CountedColors colors = RandomCountedColors(17, 2);
    AdaptivePalette palette;

    ASSERT_EQ(palette.Make(colors, 16), B_OK);

    EXPECT_EQ(palette.Colors().size(), 16U);
    EXPECT_FALSE(palette.IsLossless());
}

TEST(AdaptivePalette, OfNothingHasNoEntriesButTheExactOnes) {
    EXPECT_TRUE(Entries({}, 256).empty());
    EXPECT_EQ(Entries({}, 1, {{1, 2, 3, 0}}), (std::vector<rgb_color>{{1, 2, 3, 255}}));
}

TEST(AdaptivePalette, KeepsExactColorsFirstAndAsTheyAre) {
    const std::vector<rgb_color> exact = {{250, 1, 2, 255}, {3, 4, 5, 255}, {250, 1, 2, 255}};
    for (const size_t count : {10U, 5000U, 50000U}) {
        const CountedColors colors = RandomCountedColors(count, 3);
        for (const int32 entries : {2, 3, 16, 256}) {
            const std::vector<rgb_color> found = Entries(colors, entries, exact);
            ASSERT_GE(found.size(), 2U);
            EXPECT_EQ(found[0], exact[0]);
            EXPECT_EQ(found[1], exact[1]);
            EXPECT_LE(found.size(), static_cast<size_t>(entries));
        }
    }
}

TEST(AdaptivePalette, PutsTheOtherEntriesWhereTheExactOnesAreFar) {
    CountedColors colors;
    for (uint32 i = 0; i < 9; ++i) {
        colors.push_back({0x202020 + i % 3 + i / 3 * 0x100, 50});
        colors.push_back({0xC0C0C0 + i % 3 + i / 3 * 0x100, 1});
    }

    EXPECT_EQ(Entries(colors, 2, {ColorOfKey(0x262626)}),
              (std::vector<rgb_color>{ColorOfKey(0x262626), ColorOfKey(0xC0C1C1)}));
}

TEST(AdaptivePalette, CountsAnExactColorThatOccursOnce) {
    const CountedColors colors = {{0x102030, 5}, {0x405060, 1}};

    EXPECT_EQ(Entries(colors, 2, {ColorOfKey(0x405060)}),
              (std::vector<rgb_color>{ColorOfKey(0x405060), ColorOfKey(0x102030)}));
}

TEST(AdaptivePalette, HasDifferentOpaqueEntriesOnly) {
    for (const uint32 mask : {0xFFFFFFU, 0x0F0F0FU, 0x0000FFU | 0x030000U}) {
        const CountedColors colors = RandomCountedColors(900, 4, mask);
        for (const int32 entries : {1, 7, 255, 256}) {
            std::vector<rgb_color> found = Entries(colors, entries, {{1, 1, 1, 7}});
            EXPECT_TRUE(std::ranges::all_of(found, [](rgb_color c) { return c.alpha == 255; }));
            const auto key = [](rgb_color c) { return ColorKey(c.red, c.green, c.blue); };
            std::ranges::sort(found, {}, key);
            EXPECT_EQ(std::ranges::adjacent_find(found), found.end());
        }
    }
}

TEST(AdaptivePalette, DoesNotDependOnTheOrderOfTheColors) {
    for (const size_t count : {300U, 20000U, 60000U}) {
        CountedColors colors = RandomCountedColors(count, 5);
        const std::vector<rgb_color> expected = Entries(colors, 256, {{9, 9, 9, 255}});
        std::mt19937 random(6);
        for (int i = 0; i < 3; ++i) {
            std::shuffle(colors.begin(), colors.end(), random);
            EXPECT_EQ(Entries(colors, 256, {{9, 9, 9, 255}}), expected) << count;
        }
    }
}

TEST(AdaptivePalette, IsNeverWorseThanTheCommonestColors) {
    for (const size_t count : {257U, 300U, 1000U, 5000U}) {
        for (uint32 seed = 0; seed < 4; ++seed) {
            ExpectBetterThanTheCommonest(RandomCountedColors(count, seed));
            ExpectBetterThanTheCommonest(RandomCountedColors(count, seed, 0x3F7F7F));
        }
    }
    ExpectBetterThanTheCommonest(RandomCountedColors(40000, 5));
    for (uint32 seed = 0; seed < 3; ++seed)
        ExpectBetterThanTheCommonest(CountedColorsOf(PhotoPixels(160, 120, seed)));
}

TEST(AdaptivePalette, ComesWithinAQuarterOfALevelOfTheBestForAGreyRamp) {
    CountedColors ramp;
    for (uint32 level = 0; level < 256; ++level)
        ramp.push_back({level * 0x010101, 100});
    // Sixteen levels an entry: the best leaves 3 * (16 * 16 - 1) / 12 a pixel, less the rounding.
    const double error = SquaredError(ramp, Entries(ramp, 16)) / 25600;

    EXPECT_LT(std::sqrt(error / 3), std::sqrt(255.0 / 12) + 0.25);
}

TEST(AdaptivePalette, FindsSeparateGroupsOfColors) {
    CountedColors colors;
    for (const uint32 corner : {0x101010U, 0xE01010U, 0x10E010U, 0xE0E0E0U}) {
        for (uint32 i = 0; i < 27; ++i)
            colors.push_back(
                {corner + i % 3 + i / 3 % 3 * 0x100 + i / 9 * 0x10000, 1 + corner % 5});
    }

    EXPECT_EQ(Entries(colors, 4),
              (std::vector<rgb_color>{ColorOfKey(0x111111), ColorOfKey(0x11E111),
                                      ColorOfKey(0xE11111), ColorOfKey(0xE1E1E1)}));
}

TEST(AdaptivePalette, SurvivesTheLargestCounts) {
    CountedColors colors = RandomCountedColors(40000, 7);
    for (ColorValues::Item& item : colors)
        item.value = 0xFFFFFFFF;

    EXPECT_EQ(Entries(colors, 256).size(), 256U);
}

TEST(AdaptivePalette, TakesTwoMillionColors) {
    CountedColors colors;
    for (uint32 i = 0; i < 2000000; ++i)
        colors.push_back({i * 0x9E3779B1 & 0xFFFFFF, 1 + i % 3});

    EXPECT_EQ(Entries(colors, 256).size(), 256U);
}

TEST(AdaptivePalette, RefusesImpossibleNumbersOfEntries) {
    const CountedColors colors = RandomCountedColors(10, 8);
    const std::vector<rgb_color> exact = {{1, 0, 0, 255}, {2, 0, 0, 255}, {1, 0, 0, 255}};
    AdaptivePalette palette;
    ASSERT_EQ(palette.Make(colors, 256), B_OK);

    for (const int32 entries : {-1, 0, 257})
        EXPECT_EQ(palette.Make(colors, entries), B_BAD_VALUE) << entries;
    EXPECT_EQ(palette.Make(colors, 1, exact), B_BAD_VALUE);
    EXPECT_EQ(palette.Colors().size(), 10U);
    EXPECT_EQ(palette.Make(colors, 2, exact), B_OK);
}

TEST(AdaptivePalette, SaysWhenMemoryIsShortAndStaysAsItWas) {
    for (const size_t count : {1000U, 40000U}) {
        const CountedColors colors = RandomCountedColors(count, 9);
        for (int64 call = 1;; ++call) {
            AdaptivePalette palette;
            const AllocationFault fault(call);
            const status_t status = palette.Make(colors, 256);
            if (fault.Calls() < call) {
                EXPECT_EQ(status, B_OK);
                EXPECT_GT(call, 4);
                break;
            }
            EXPECT_EQ(status, B_NO_MEMORY);
            EXPECT_TRUE(palette.Colors().empty());
        }
    }
}

TEST(AdaptivePalette, EndsEarlyWhenTheWorkIsStopped) {
    for (const size_t count : {1000U, 40000U}) {
        Work work;
        work.StopAll();
        AdaptivePalette palette;

        EXPECT_EQ(palette.Make(RandomCountedColors(count, 10), 256, {}, &work), B_CANCELED);

        EXPECT_TRUE(palette.Colors().empty());
    }
}

}  // namespace kirto::test
