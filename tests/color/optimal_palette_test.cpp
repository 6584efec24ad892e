#include <gtest/gtest.h>
#include <random>

#include "color/palette.h"
#include "color/reference_palette.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr rgb_color kBlack{0, 0, 0, 255};
constexpr const char* kOutOfMemoryAlert = "WARNING [] Out of memory. | OK";
constexpr const char* kWrongSpaceLine = "Palette::BuildHashtable() - Wrong color space given\n";

// A picture of one row with these pixels, as 0xAARRGGBB.
std::shared_ptr<const Picture> Row(const std::vector<uint32>& argb, color_space space = B_RGB32) {
    return FramePictureOf(static_cast<int32>(argb.size()), 1, argb, space);
}

// A row of so many different colours, each once, in the order of the colour table.
std::shared_ptr<const Picture> DistinctColors(uint32 count) {
    std::vector<uint32> argb;
    for (uint32 i = 0; i < count; ++i)
        argb.push_back(0xFF000000U | (i + 1));
    return Row(argb);
}

// Three colours: 4, 2 and 1 pixels.
std::shared_ptr<const Picture> ThreeColors() {
    return Row(
        {0xFF0000FF, 0xFF00FF00, 0xFF00FF00, 0xFFFF0000, 0xFFFF0000, 0xFFFF0000, 0xFFFF0000});
}

std::vector<rgb_color> OptimalColors(const Picture& picture) {
    Palette palette;
    return palette.MakeNearestColorPalette(&picture).value_or(std::vector<rgb_color>{});
}

void ExpectWebSafe(const Palette& palette) {
    EXPECT_EQ(palette.mode, kPaletteWebSafe);
    EXPECT_EQ(palette.size, 216);
    EXPECT_EQ(palette.bits, 8);
    EXPECT_EQ(palette.colors, kWebSafeColors);
}

// The calls that building the optimal palette of ThreeColors() makes: the counted colors and their
// slots, the candidates, the result.
constexpr int64 kAllocations = 4;

// Every key once, in an order that looks random but is the same in every run.
std::vector<uint32> ScatteredColors(uint32 count) {
    std::vector<uint32> argb;
    for (uint32 i = 0; i < count; ++i)
        argb.push_back(0xFF000000U | (i * 0x3C6EF35FU & 0xFFFFFFU));
    return argb;
}

void ExpectPlainPalette(const std::vector<uint32>& argb) {
    const auto picture = Row(argb);
    Palette palette;

    const auto colors = palette.MakeNearestColorPalette(picture.get());

    ASSERT_TRUE(colors);
    EXPECT_EQ(*colors, ReferenceOptimal(*picture));
    EXPECT_EQ(palette.unique_colors, static_cast<int32>(ReferenceColors(*picture).size()));
}

}  // namespace

TEST(OptimalPalette, OfOneColourIsThatColourAndBlack) {
    const auto picture = FramePictureOf(3, 2, std::vector<uint32>(6, 0xFF102030));

    const Palette palette(picture.get());

    EXPECT_EQ(palette.mode, kPaletteOptimal);
    EXPECT_EQ(palette.unique_colors, 1);
    EXPECT_EQ(palette.bits, 1);
    EXPECT_EQ(palette.size, 2);
    EXPECT_EQ(palette.colors[0], (rgb_color{0x10, 0x20, 0x30, 255}));
    EXPECT_EQ(palette.colors[1], kBlack);
}

TEST(OptimalPalette, OfThreeColoursHasFourEntriesTheLastBlack) {
    const Palette palette(ThreeColors().get());

    EXPECT_EQ(palette.unique_colors, 3);
    EXPECT_EQ(palette.bits, 2);
    EXPECT_EQ(palette.size, 4);
    EXPECT_EQ(palette.colors[0], (rgb_color{255, 0, 0, 255}));
    EXPECT_EQ(palette.colors[1], (rgb_color{0, 255, 0, 255}));
    EXPECT_EQ(palette.colors[2], (rgb_color{0, 0, 255, 255}));
    EXPECT_EQ(palette.colors[3], kBlack);
}

TEST(OptimalPalette, Of257ColoursDropsTheLeastFrequent) {
    std::vector<uint32> argb;
    for (uint32 i = 0; i < 257; ++i) {
        const uint32 pixels = i == 100 ? 1 : 2;
        argb.insert(argb.end(), pixels, 0xFF000000U | i << 8);
    }

    const Palette palette(Row(argb).get());

    EXPECT_EQ(palette.unique_colors, 257);
    EXPECT_EQ(palette.bits, 8);
    EXPECT_EQ(palette.size, 256);
    // Key 0x010000 shares the bucket of key 0 and follows it there.
    EXPECT_EQ(palette.colors[0], kBlack);
    EXPECT_EQ(palette.colors[1], (rgb_color{1, 0, 0, 255}));
    EXPECT_EQ(palette.colors[100], (rgb_color{0, 99, 0, 255}));
    EXPECT_EQ(palette.colors[101], (rgb_color{0, 101, 0, 255}));
    EXPECT_EQ(palette.colors[255], (rgb_color{0, 255, 0, 255}));
}

TEST(OptimalPalette, DropsTheLastOfEqualsWhenItIsFull) {
    const std::vector<rgb_color> colors = OptimalColors(*DistinctColors(300));

    ASSERT_EQ(colors.size(), 256U);
    for (uint32 i = 0; i < 256; ++i) {
        const rgb_color expected{0, static_cast<uint8>((i + 1) >> 8), static_cast<uint8>(i + 1),
                                 255};
        EXPECT_EQ(colors[i], expected);
    }
}

TEST(OptimalPalette, HasAsManyBitsAsItsColoursNeed) {
    const std::pair<uint32, int32> cases[] = {
        {1, 1},  {2, 1},  {3, 2},  {4, 2},  {5, 3},   {8, 3},   {9, 4},   {16, 4},  {17, 5},
        {32, 5}, {33, 6}, {64, 6}, {65, 7}, {128, 7}, {129, 8}, {256, 8}, {257, 8}, {1000, 8}};
    for (const auto& [count, bits] : cases) {
        const Palette palette(DistinctColors(count).get());

        EXPECT_EQ(palette.unique_colors, static_cast<int32>(count));
        EXPECT_EQ(palette.bits, bits) << count << " colours";
        EXPECT_EQ(palette.size, 1 << bits) << count << " colours";
    }
}

TEST(OptimalPalette, OrdersEquallyFrequentColoursByGreenAndBlueThenByAppearance) {
    const auto picture = Row({0xFF050203, 0xFF010300, 0xFF020203, 0xFF090202});

    EXPECT_EQ(
        OptimalColors(*picture),
        (std::vector<rgb_color>{{9, 2, 2, 255}, {5, 2, 3, 255}, {2, 2, 3, 255}, {1, 3, 0, 255}}));
}

TEST(OptimalPalette, KeepsEntriesPastItsSize) {
    Palette palette;

    palette.Set(ThreeColors().get());

    EXPECT_EQ(palette.colors[4], kWebSafeColors[4]);
    EXPECT_EQ(palette.colors[255], kWebSafeColors[255]);
}

TEST(OptimalPalette, IgnoresAlpha) {
    const Palette palette(Row({0x00112233, 0x80112233, 0xFF112233}).get());

    EXPECT_EQ(palette.unique_colors, 1);
    EXPECT_EQ(palette.colors[0], (rgb_color{0x11, 0x22, 0x33, 255}));
}

TEST(OptimalPalette, IsTheSameInAllFour32BitSpaces) {
    const std::vector<uint32> argb = {0x00112233, 0x11445566, 0x22112233, 0x33778899};
    const std::vector<rgb_color> expected = OptimalColors(*Row(argb));

    for (const color_space space : {B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        EXPECT_EQ(OptimalColors(*Row(argb, space)), expected) << "space " << space;
    }
}

TEST(OptimalPalette, EqualsSortingInAllFour32BitSpacesWhateverTheAlpha) {
    std::mt19937 random(23);
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        std::vector<uint32> argb;
        // Runs of one color in which only the alpha differs.
        while (argb.size() < 60000) {
            const uint32 color = static_cast<uint32>(random()) & 0x001F3F1FU;
            for (size_t left = random() % 4; left > 0; --left)
                argb.push_back(color | static_cast<uint32>(random()) << 24);
        }
        Palette palette;

        const auto colors = palette.MakeNearestColorPalette(Row(argb, space).get());

        ASSERT_TRUE(colors);
        EXPECT_EQ(*colors, ReferenceOptimal(*Row(argb))) << "space " << space;
    }
}

TEST(OptimalPalette, EqualsSortingOnRandomPictures) {
    std::mt19937 random(21);
    for (const uint32 mask : {0x00FFFFFFU, 0x00C0C0C0U, 0x00FF0000U, 0x00FF0101U, 0x00070707U}) {
        std::vector<uint32> argb;
        while (argb.size() < 64 * 64) {
            argb.insert(argb.end(), 1 + random() % 3, static_cast<uint32>(random()) & mask);
        }
        argb.resize(64 * 64);
        const auto picture = FramePictureOf(64, 64, argb);
        Palette palette;

        const auto colors = palette.MakeNearestColorPalette(picture.get());

        ASSERT_TRUE(colors);
        EXPECT_EQ(*colors, ReferenceOptimal(*picture));
        EXPECT_EQ(palette.unique_colors, static_cast<int32>(ReferenceColors(*picture).size()));
        EXPECT_EQ(palette.CountUniqueColors(picture.get()), palette.unique_colors);
    }
}

TEST(OptimalPalette, EqualsSortingOnPicturesOfVeryManyColors) {
    std::vector<uint32> argb = ScatteredColors(530000);
    // Some that occur twice, spread over the picture, so that counts decide too.
    for (size_t i = 0; i < 200; ++i)
        argb[argb.size() - 1 - i * 1000] = argb[i * 1500];
    ExpectPlainPalette(argb);
}

TEST(OptimalPalette, EqualsSortingWhereEveryColorIsCommonerThanTheOneBefore) {
    std::vector<uint32> argb;
    for (uint32 i = 0; i < 700; ++i)
        argb.insert(argb.end(), i + 1, 0xFF000000U | (700 - i) * 0x10100U);
    ExpectPlainPalette(argb);
}

TEST(OptimalPalette, EqualsSortingOfColorsThatDifferOnlyInRed) {
    std::vector<uint32> argb;
    for (uint32 blue = 0; blue < 6; ++blue) {
        for (uint32 red = 0; red < 256; ++red)
            argb.push_back(0xFF000000U | (red * 77 % 256) << 16 | (5 - blue));
    }
    ExpectPlainPalette(argb);
}

TEST(OptimalPalette, AsksForMemoryAFewTimesWhateverTheNumberOfColors) {
    const auto picture = Row(ScatteredColors(530000));
    const AllocationFault fault(1000);

    EXPECT_EQ(Palette(picture.get()).unique_colors, 530000);

    EXPECT_LT(fault.Calls(), 40);
}

TEST(OptimalPalette, FailsAtEachAllocationOfAPictureOfManyColors) {
    const auto picture = Row(ScatteredColors(3000));
    int64 calls = 0;
    {
        const AllocationFault fault(1000);
        ASSERT_EQ(Palette(picture.get()).mode, kPaletteOptimal);
        calls = fault.Calls();
    }
    for (int64 call = 1; call <= calls; ++call) {
        const AlertRecorder alerts;
        const AllocationFault fault(call);

        ExpectWebSafe(Palette(picture.get()));

        EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kOutOfMemoryAlert});
    }
}

TEST(BuildHashtable, CountsEachColourInTheOrderOfItsBuckets) {
    std::mt19937 random(22);
    std::vector<uint32> argb(50 * 20);
    for (uint32& pixel : argb)
        pixel = static_cast<uint32>(random()) & 0x00070303U;
    const auto picture = FramePictureOf(50, 20, argb);

    const auto table = Palette().BuildHashtable(picture.get());

    ASSERT_TRUE(table);
    EXPECT_EQ(table->bucket_count, 65536);
    for (const CountedColor& color : ReferenceColors(*picture)) {
        const auto* item = static_cast<const ColorItem*>(table->NextItem());
        ASSERT_NE(item, nullptr);
        EXPECT_EQ(item->key, color.key);
        EXPECT_EQ(item->value, color.count);
    }
    EXPECT_EQ(table->NextItem(), nullptr);
}

TEST(BuildHashtable, CountsRunsAndReturningColours) {
    const auto table = Palette().BuildHashtable(Row({1, 1, 1, 2, 1, 2, 2}).get());

    ASSERT_TRUE(table);
    EXPECT_EQ(table->CountItems(), 2);
    EXPECT_EQ(static_cast<const ColorItem*>(table->GetItem(1))->value, 4U);
    EXPECT_EQ(static_cast<const ColorItem*>(table->GetItem(2))->value, 3U);
}

TEST(BuildHashtable, RefusesOtherColourSpacesWithALine) {
    for (const color_space space : {B_RGB24, B_RGB16, B_CMAP8, B_GRAY8, B_GRAY1}) {
        const auto picture = Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(4, 4), space));
        const DebugRecorder lines;
        const AlertRecorder alerts;

        EXPECT_FALSE(Palette().BuildHashtable(picture.get()));

        EXPECT_EQ(lines.Text(), kWrongSpaceLine);
        EXPECT_TRUE(alerts.Lines().empty());
    }
}

TEST(BuildHashtable, AllocatesBeforeItLooksAtTheColourSpace) {
    const auto picture = Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(4, 4), B_RGB24));
    const DebugRecorder lines;
    const AlertRecorder alerts;
    const AllocationFault fault(2);

    EXPECT_FALSE(Palette().BuildHashtable(picture.get()));

    EXPECT_EQ(lines.Text(), "");
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kOutOfMemoryAlert});
}

TEST(BuildHashtable, TellsTheUserWhenMemoryIsShort) {
    const auto picture = ThreeColors();
    // The counted colors and their slots, the table and its buckets, three items.
    for (int64 call = 1; call <= 7; ++call) {
        const DebugRecorder lines;
        const AlertRecorder alerts;
        const AllocationFault fault(call);

        EXPECT_FALSE(Palette().BuildHashtable(picture.get())) << "call " << call;

        EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kOutOfMemoryAlert});
        EXPECT_EQ(lines.Text(), "");
    }
}

TEST(OptimalPalette, FailsAtEachAllocationWithOneAlert) {
    const auto picture = ThreeColors();
    for (int64 call = 1; call <= kAllocations; ++call) {
        const AlertRecorder alerts;
        const AllocationFault fault(call);
        Palette palette;

        EXPECT_FALSE(palette.MakeNearestColorPalette(picture.get())) << "call " << call;

        EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kOutOfMemoryAlert});
    }
}

TEST(OptimalPalette, TakesNoMoreAllocationsThanAreTestedToFail) {
    const auto picture = ThreeColors();
    const AlertRecorder alerts;
    const AllocationFault fault(kAllocations + 1);

    EXPECT_EQ(Palette(picture.get()).mode, kPaletteOptimal);

    EXPECT_EQ(fault.Calls(), kAllocations);
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST(OptimalPalette, FallsBackToWebSafeWhenMemoryIsShort) {
    const auto picture = ThreeColors();
    for (int64 call = 1; call <= kAllocations; ++call) {
        const AlertRecorder alerts;
        const AllocationFault fault(call);
        Palette palette(kPaletteGreyscale);

        palette.Set(picture.get());

        ExpectWebSafe(palette);
    }
}

TEST(OptimalPalette, FallsBackToWebSafeForOtherColourSpaces) {
    const auto picture = Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(4, 4), B_RGB24));
    const DebugRecorder lines;
    const AlertRecorder alerts;

    const Palette palette(picture.get());

    ExpectWebSafe(palette);
    EXPECT_EQ(lines.Text(), kWrongSpaceLine);
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST(OptimalPalette, FallsBackToWebSafeWithoutAPicture) {
    const DebugRecorder lines;
    const AlertRecorder alerts;
    const Picture* none = nullptr;

    ExpectWebSafe(Palette(none));

    EXPECT_EQ(lines.Text(), "");
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST(OptimalPalette, OfAPictureWithoutBitsIsTwiceBlack) {
    const auto picture = Picture::Of(std::make_shared<BBitmap>(BRect(), B_RGB32));
    ASSERT_NE(picture->ToBitmap()->InitCheck(), B_OK);

    const Palette palette(picture.get());

    EXPECT_EQ(palette.mode, kPaletteOptimal);
    EXPECT_EQ(palette.unique_colors, 0);
    EXPECT_EQ(palette.bits, 1);
    EXPECT_EQ(palette.size, 2);
    EXPECT_EQ(palette.colors[0], kBlack);
    EXPECT_EQ(palette.colors[1], kBlack);
}

TEST(CountUniqueColors, CountsDistinctColours) {
    EXPECT_EQ(Palette().CountUniqueColors(ThreeColors().get()), 3);
    EXPECT_EQ(Palette().CountUniqueColors(DistinctColors(1000).get()), 1000);
}

TEST(CountUniqueColors, IsZeroWhereTheTableCantBeBuilt) {
    const DebugRecorder lines;
    const AlertRecorder alerts;
    const auto grey = Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(4, 4), B_GRAY8));
    const auto empty = Picture::Of(std::make_shared<BBitmap>(BRect(), B_RGB32));
    const auto picture = ThreeColors();

    EXPECT_EQ(Palette().CountUniqueColors(grey.get()), 0);
    EXPECT_EQ(Palette().CountUniqueColors(empty.get()), 0);
    EXPECT_EQ(Palette().CountUniqueColors(nullptr), 0);
    const AllocationFault fault(2);
    EXPECT_EQ(Palette().CountUniqueColors(picture.get()), 0);

    EXPECT_EQ(lines.Text(), kWrongSpaceLine);
    EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kOutOfMemoryAlert});
}

TEST(UpdateIfNeeded, TakesTheFirstFrameForKindThree) {
    Palette palette(kPaletteFirstFrame);

    palette.UpdateIfNeeded(ThreeColors().get(), DistinctColors(9).get());

    EXPECT_EQ(palette.mode, kPaletteFirstFrame);
    EXPECT_EQ(palette.unique_colors, 3);
    EXPECT_EQ(palette.bits, 2);
    EXPECT_EQ(palette.size, 4);
    EXPECT_EQ(palette.colors[0], (rgb_color{255, 0, 0, 255}));
}

TEST(UpdateIfNeeded, TakesTheCurrentFrameForKindFour) {
    Palette palette(kPaletteCurrentFrame);

    palette.UpdateIfNeeded(ThreeColors().get(), DistinctColors(9).get());

    EXPECT_EQ(palette.mode, kPaletteCurrentFrame);
    EXPECT_EQ(palette.unique_colors, 9);
    EXPECT_EQ(palette.size, 16);
}

TEST(UpdateIfNeeded, ChangesNothingWithoutTheFrame) {
    Palette first(kPaletteFirstFrame);
    Palette current(kPaletteCurrentFrame);

    first.UpdateIfNeeded(nullptr, ThreeColors().get());
    current.UpdateIfNeeded(ThreeColors().get(), nullptr);

    EXPECT_EQ(first.mode, kPaletteFirstFrame);
    EXPECT_EQ(first.size, 0);
    EXPECT_EQ(current.mode, kPaletteCurrentFrame);
    EXPECT_EQ(current.size, 0);
}

TEST(UpdateIfNeeded, ChangesNothingForOtherKinds) {
    const auto picture = ThreeColors();
    for (const int32 kind : {kPaletteWebSafe, kPaletteSystem, kPaletteGreyscale, kPaletteOptimal,
                             kPaletteFromFile, kPaletteAwaitingFile}) {
        Palette palette(kind);
        const ColorTable before = palette.colors;
        const int32 size = palette.size;

        palette.UpdateIfNeeded(picture.get(), picture.get());

        EXPECT_EQ(palette.mode, kind);
        EXPECT_EQ(palette.colors, before);
        EXPECT_EQ(palette.size, size);
    }
}

TEST(UpdateIfNeeded, FallsBackToWebSafeColoursButKeepsTheKind) {
    const auto picture = ThreeColors();
    for (const int32 kind : {kPaletteFirstFrame, kPaletteCurrentFrame}) {
        const AlertRecorder alerts;
        const AllocationFault fault(1);
        Palette palette(kind);

        palette.UpdateIfNeeded(picture.get(), picture.get());

        EXPECT_EQ(palette.mode, kind);
        EXPECT_EQ(palette.size, 216);
        EXPECT_EQ(palette.bits, 8);
        EXPECT_EQ(palette.colors, kWebSafeColors);
        EXPECT_EQ(alerts.Lines(), std::vector<std::string>{kOutOfMemoryAlert});
    }
}

}  // namespace kirto::test
