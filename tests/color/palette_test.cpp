#include "color/palette.h"

#include <gtest/gtest.h>
#include <random>

#include "base/allocation.h"
#include "color/reference_palette.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr rgb_color kOpaqueBlack{0, 0, 0, 255};

ColorTable GreyRamp() {
    ColorTable colors;
    uint8 level = 0;
    for (rgb_color& color : colors) {
        color = {level, level, level, 255};
        ++level;
    }
    return colors;
}

// A palette from a file with the given entries in use.
Palette PaletteOf(const std::vector<rgb_color>& colors) {
    Palette palette(kPaletteFromFile);
    std::copy(colors.begin(), colors.end(), palette.colors.begin());
    palette.size = static_cast<int32>(colors.size());
    return palette;
}

// What becomes of a web-safe palette, as a status, without an alert or a debug line.
status_t SetSilently(const Picture* picture, const Work* work = nullptr) {
    const DebugRecorder debug;
    const AlertRecorder alerts;
    Palette palette;
    const status_t status = palette.SetOptimal(picture, work);
    EXPECT_EQ(palette.mode, status == B_OK ? kPaletteOptimal : kPaletteWebSafe);
    EXPECT_EQ(debug.Text(), "");
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{});
    return status;
}

}  // namespace

TEST(Palette, IsWebSafeByDefault) {
    const Palette palette;

    EXPECT_EQ(palette.mode, kPaletteWebSafe);
    EXPECT_EQ(palette.size, 216);
    EXPECT_EQ(palette.bits, 8);
    EXPECT_EQ(palette.colors, kWebSafeColors);
    EXPECT_EQ(palette.web_safe, &kWebSafeColors);
}

TEST(Palette, StartsWithoutTransparencyDitheringAndBackground) {
    const Palette palette(kPaletteSystem);

    EXPECT_EQ(palette.background_index, 0);
    EXPECT_EQ(palette.transparent_index, 0);
    EXPECT_EQ(palette.unique_colors, 0);
    EXPECT_FALSE(palette.use_transparent);
    EXPECT_FALSE(palette.dither);
}

TEST(Palette, TakesTheSystemColours) {
    const Palette palette(kPaletteSystem);

    EXPECT_EQ(palette.mode, kPaletteSystem);
    EXPECT_EQ(palette.size, 256);
    EXPECT_EQ(palette.bits, 8);
    EXPECT_EQ(palette.colors, kSystemColors);
}

TEST(Palette, MakesAGreyRamp) {
    const Palette palette(kPaletteGreyscale);

    EXPECT_EQ(palette.mode, kPaletteGreyscale);
    EXPECT_EQ(palette.size, 256);
    EXPECT_EQ(palette.bits, 8);
    EXPECT_EQ(palette.colors, GreyRamp());
}

TEST(Palette, StoresOtherKindsWithEightBitsAndKeepsItsEntries) {
    for (const int32 kind : {kPaletteFirstFrame, kPaletteCurrentFrame, kPaletteOptimal,
                             kPaletteFromFile, kPaletteAwaitingFile, PaletteMode{5}}) {
        Palette palette = PaletteOf({{1, 2, 3, 255}, {4, 5, 6, 255}});
        palette.bits = 1;
        const ColorTable before = palette.colors;

        palette.Set(kind);

        EXPECT_EQ(palette.mode, kind);
        EXPECT_EQ(palette.bits, 8);
        EXPECT_EQ(palette.size, 2);
        EXPECT_EQ(palette.colors, before);
    }
}

TEST(Palette, KeepsItsEncodingSettingsWhenTheKindChanges) {
    Palette palette;
    palette.background_index = 3;
    palette.transparent_index = 4;
    palette.use_transparent = true;
    palette.dither = true;
    palette.unique_colors = 5;

    palette.Set(kPaletteSystem);

    EXPECT_EQ(palette.background_index, 3);
    EXPECT_EQ(palette.transparent_index, 4);
    EXPECT_TRUE(palette.use_transparent);
    EXPECT_TRUE(palette.dither);
    EXPECT_EQ(palette.unique_colors, 5);
}

TEST(Palette, YieldsOpaqueBlackForIndicesOutside0To255) {
    const Palette palette(kPaletteSystem);

    EXPECT_EQ(palette.ColorForIndex(-1), kOpaqueBlack);
    EXPECT_EQ(palette.ColorForIndex(256), kOpaqueBlack);
    EXPECT_EQ(palette.ColorForIndex(INT32_MIN), kOpaqueBlack);
    EXPECT_EQ(palette.ColorForIndex(INT32_MAX), kOpaqueBlack);
}

TEST(Palette, YieldsEntriesPastItsSizeToo) {
    Palette palette = PaletteOf({{1, 2, 3, 255}});
    palette.colors[255] = {7, 8, 9, 10};

    EXPECT_EQ(palette.ColorForIndex(0), (rgb_color{1, 2, 3, 255}));
    EXPECT_EQ(palette.ColorForIndex(255), (rgb_color{7, 8, 9, 10}));
}

TEST(Palette, AnswersTheGreyRampByFormulaEvenIfItsEntriesWereChanged) {
    Palette palette(kPaletteGreyscale);
    palette.colors.fill({10, 20, 30, 255});
    palette.size = 0;

    EXPECT_EQ(palette.IndexForColor(10, 20, 30), (10 + 2 * 20 + 30) / 4);
    EXPECT_EQ(palette.IndexForColor(1, 1, 0), 0);
    EXPECT_EQ(palette.IndexForColor(1, 1, 1), 1);
    EXPECT_EQ(palette.IndexForColor(255, 255, 254), 254);
    EXPECT_EQ(palette.IndexForColor(255, 255, 255), 255);
}

TEST(Palette, ReturnsTheLowerOfTwoEquallyNearIndices) {
    const Palette palette = PaletteOf({{255, 255, 255, 255}, {10, 0, 0, 255}, {0, 10, 0, 255}});

    EXPECT_EQ(palette.IndexForColor(5, 5, 0), 1);
    EXPECT_EQ(palette.IndexForColor(5, 6, 0), 2);
}

TEST(Palette, ReturnsTheFirstOfTwoEqualEntries) {
    const Palette palette = PaletteOf({{9, 9, 9, 255}, {1, 2, 3, 255}, {1, 2, 3, 255}});

    EXPECT_EQ(palette.IndexForColor(1, 2, 3), 1);
}

TEST(Palette, PrefersAnExactMatchToANearEntryInFrontOfIt) {
    const Palette palette = PaletteOf({{1, 2, 4, 255}, {1, 2, 3, 255}});

    EXPECT_EQ(palette.IndexForColor(1, 2, 3), 1);
}

TEST(Palette, MeasuresTheSumOfDifferences) {
    // Straight-line distance would prefer the second entry.
    const Palette palette = PaletteOf({{16, 0, 0, 255}, {6, 6, 6, 255}});

    EXPECT_EQ(palette.IndexForColor(0, 0, 0), 0);
}

TEST(Palette, ReturnsIndexZeroForTheGreatestDistance) {
    const Palette palette = PaletteOf({{255, 255, 255, 255}, {255, 255, 255, 255}});

    EXPECT_EQ(palette.IndexForColor(0, 0, 0), 0);
}

TEST(Palette, DoesNotSearchPastItsSize) {
    Palette palette = PaletteOf({{0, 0, 0, 255}, {100, 100, 100, 255}, {200, 200, 200, 255}});
    palette.size = 2;

    EXPECT_EQ(palette.IndexForColor(200, 200, 200), 1);
}

TEST(Palette, ReturnsIndexZeroWithoutEntries) {
    Palette palette = PaletteOf({{0, 0, 0, 255}, {100, 100, 100, 255}});

    palette.size = 0;
    EXPECT_EQ(palette.IndexForColor(100, 100, 100), 0);
    palette.size = -1;
    EXPECT_EQ(palette.IndexForColor(100, 100, 100), 0);
}

TEST(Palette, SearchesNoMoreThanTheEntriesThatExist) {
    Palette palette(kPaletteFromFile);
    palette.colors[255] = {200, 100, 50, 255};
    palette.size = 100000;

    EXPECT_EQ(palette.IndexForColor(200, 100, 50), 255);
}

TEST(Palette, IgnoresAlphaWhenItSearches) {
    const Palette palette = PaletteOf({{1, 1, 1, 0}, {2, 2, 2, 255}});

    EXPECT_EQ(palette.IndexForColor(rgb_color{1, 1, 1, 255}), 0);
    EXPECT_EQ(palette.IndexForColor(rgb_color{2, 2, 2, 0}), 1);
}

TEST(Palette, FindsTheSameIndexAsAnExhaustiveSearch) {
    std::mt19937 random(20);
    const auto component = [&random] { return static_cast<uint8>(random()); };
    for (const int32 size : {1, 2, 16, 216, 256}) {
        Palette palette(kPaletteFromFile);
        // Few levels, so that equal distances are frequent.
        for (rgb_color& color : palette.colors) {
            color = {static_cast<uint8>(component() & 0xC0), static_cast<uint8>(component() & 0xE0),
                     static_cast<uint8>(component() & 0xC0), 255};
        }
        palette.size = size;
        for (int i = 0; i < 2000; ++i) {
            const rgb_color color{component(), component(), component(), component()};
            const uint8 expected = ReferenceNearest(palette.colors, size, color);
            ASSERT_EQ(palette.IndexForColor(color), expected);
            ASSERT_EQ(palette.IndexForColor(color.red, color.green, color.blue), expected);
        }
    }
}

TEST(Palette, FindsEveryWebSafeColourAtItsOwnIndex) {
    const Palette palette;

    for (int32 i = 0; i < 216; ++i) {
        EXPECT_EQ(palette.IndexForColor(palette.ColorForIndex(i)), i);
    }
}

TEST(Palette, RecognisesTheBuiltInTablesAndChangesTheKindOnly) {
    const std::pair<ColorTable, int32> tables[] = {{kWebSafeColors, kPaletteWebSafe},
                                                   {kSystemColors, kPaletteSystem},
                                                   {GreyRamp(), kPaletteGreyscale}};
    for (const auto& [colors, kind] : tables) {
        Palette palette(kPaletteFromFile);
        palette.colors = colors;
        palette.size = 128;
        palette.bits = 7;

        palette.RecogniseBuiltIn();

        EXPECT_EQ(palette.mode, kind);
        EXPECT_EQ(palette.size, 128);
        EXPECT_EQ(palette.bits, 7);
        EXPECT_EQ(palette.colors, colors);
    }
}

TEST(Palette, RecognisesABuiltInTableByItsLastEntryToo) {
    for (const ColorTable& colors : {kWebSafeColors, kSystemColors, GreyRamp()}) {
        Palette palette(kPaletteFromFile);
        palette.colors = colors;
        palette.colors[255].blue ^= 1;

        palette.RecogniseBuiltIn();

        EXPECT_EQ(palette.mode, kPaletteFromFile);
    }
}

TEST(Palette, ComparesAlphaWithTheTablesButNotWithTheGreyRamp) {
    Palette web_safe(kPaletteFromFile);
    web_safe.colors = kWebSafeColors;
    web_safe.colors[100].alpha = 0;
    Palette system(kPaletteFromFile);
    system.colors = kSystemColors;
    system.colors[100].alpha = 0;
    Palette grey(kPaletteFromFile);
    grey.colors = GreyRamp();
    grey.colors[100].alpha = 0;

    web_safe.RecogniseBuiltIn();
    system.RecogniseBuiltIn();
    grey.RecogniseBuiltIn();

    EXPECT_EQ(web_safe.mode, kPaletteFromFile);
    EXPECT_EQ(system.mode, kPaletteFromFile);
    EXPECT_EQ(grey.mode, kPaletteGreyscale);
}

TEST(Palette, ComparesEachComponentWithTheGreyRamp) {
    for (uint8 rgb_color::*component : {&rgb_color::red, &rgb_color::green, &rgb_color::blue}) {
        Palette palette(kPaletteFromFile);
        palette.colors = GreyRamp();
        palette.colors[7].*component = 8;

        palette.RecogniseBuiltIn();

        EXPECT_EQ(palette.mode, kPaletteFromFile);
    }
}

TEST(Palette, IsNotDitheredOnceItIsGreyscale) {
    for (int32 kind = kPaletteWebSafe; kind <= kPaletteAwaitingFile; ++kind) {
        Palette palette;
        palette.dither = true;

        palette.Set(kind);

        EXPECT_EQ(palette.dither, kind != kPaletteGreyscale) << kind;
    }
}

TEST(Palette, IsNotDitheredOnceItIsRecognisedAsGreyscale) {
    for (const ColorTable& colors : {kWebSafeColors, kSystemColors, GreyRamp()}) {
        Palette palette(kPaletteFromFile);
        palette.colors = colors;
        palette.dither = true;

        palette.RecogniseBuiltIn();

        EXPECT_EQ(palette.dither, palette.mode != kPaletteGreyscale) << palette.mode;
    }
}

TEST(Palette, LeavesItToOthersToTellWhyItCouldNotBeMadeForAPicture) {
    const auto picture = FramePictureOf(2, 1, {0xFF010203, 0xFF040506});
    const auto indices = Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(2, 1), B_CMAP8));
    Work stopped;
    stopped.StopAll();

    EXPECT_EQ(SetSilently(picture.get()), B_OK);
    EXPECT_EQ(SetSilently(nullptr), B_BAD_VALUE);
    EXPECT_EQ(SetSilently(indices.get()), B_BAD_TYPE);
    EXPECT_EQ(SetSilently(picture.get(), &stopped), B_CANCELED);
    const AllocationFault fault(1);
    EXPECT_EQ(SetSilently(picture.get()), B_NO_MEMORY);
}

TEST(Palette, TellsOfMemoryAndOfOddPicturesOnly) {
    const DebugRecorder debug;
    const AlertRecorder alerts;
    for (const status_t status : {B_OK, B_BAD_VALUE, B_CANCELED})
        Palette::TellOfFailure(status);
    EXPECT_EQ(debug.Text(), "");
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{});

    Palette::TellOfFailure(B_NO_MEMORY);
    Palette::TellOfFailure(B_BAD_TYPE);
    EXPECT_EQ(debug.Text(), "Palette::BuildHashtable() - Wrong color space given\n");
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{"WARNING [] Out of memory. | OK"});
}

}  // namespace kirto::test
