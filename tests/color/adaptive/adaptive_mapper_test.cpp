#include "color/adaptive/adaptive_mapper.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "base/allocation.h"
#include "color/adaptive/adaptive_palette.h"
#include "color/adaptive/counted_colors.h"
#include "kit/bitmap.h"

namespace kirto::test {

namespace {

constexpr AdaptiveDither kDithers[] = {AdaptiveDither::kNone, AdaptiveDither::kErrorDiffusion,
                                       AdaptiveDither::kOrdered};

// Pixels 0xAARRGGBB as bytes.
std::vector<uint8> BytesOf(const std::vector<uint32>& argb, color_space space = B_RGB32) {
    std::vector<uint8> bytes;
    for (const uint32 pixel : argb) {
        for (uint32 i = 0; i < 4; ++i) {
            const uint32 shift = IsBigEndian(space) ? 24 - 8 * i : 8 * i;
            bytes.push_back(static_cast<uint8>(pixel >> shift));
        }
    }
    return bytes;
}

std::vector<uint8> Map(const std::vector<uint32>& argb, int32 width,
                       std::span<const rgb_color> colors, const AdaptiveMapper::Options& options,
                       color_space space = B_RGB32) {
    const std::vector<uint8> bytes = BytesOf(argb, space);
    AdaptiveMapper mapper(colors, width, space, options);
    EXPECT_TRUE(mapper.HasMemory());
    std::vector<uint8> indices(argb.size());
    for (size_t first = 0, y = 0; first < argb.size(); first += static_cast<size_t>(width), ++y)
        mapper.MapRow(static_cast<int32>(y), bytes.data() + first * 4, indices.data() + first);
    return indices;
}

std::vector<rgb_color> PaletteOf(const std::vector<uint32>& argb, int32 entries) {
    AdaptivePalette palette;
    EXPECT_EQ(palette.Make(CountedColorsOf(argb), entries), B_OK);
    return {palette.Colors().begin(), palette.Colors().end()};
}

const std::vector<rgb_color> kBlackAndWhite = {{0, 0, 0, 255}, {255, 255, 255, 255}};

}  // namespace

TEST(AdaptiveMapper, WithoutDitheringEqualsAnExhaustiveSearchInEverySpace) {
    const std::vector<uint32> argb = PhotoPixels(61, 47);
    const std::vector<rgb_color> colors = PaletteOf(argb, 50);
    std::vector<uint8> expected;
    for (const uint32 pixel : argb)
        expected.push_back(static_cast<uint8>(PlainNearest(colors, pixel & 0xFFFFFF)));
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG})
        EXPECT_EQ(Map(argb, 61, colors, {}, space), expected) << space;
}

TEST(AdaptiveMapper, ChangesNothingWhereEveryColorIsAnEntry) {
    std::vector<uint32> argb = PhotoPixels(40, 30);
    for (uint32& pixel : argb)
        pixel &= 0xFFC0C0C0;
    const std::vector<rgb_color> colors = PaletteOf(argb, 256);
    for (const AdaptiveDither dither : kDithers) {
        const std::vector<uint8> indices = Map(argb, 40, colors, {.dither = dither});
        for (size_t i = 0; i < argb.size(); ++i)
            ASSERT_EQ(colors[indices[i]], ColorOfKey(argb[i] & 0xFFFFFF));
    }
}

TEST(AdaptiveMapper, OrderedGivesTheSamePixelInTheSamePlaceTheSameIndex) {
    const std::vector<uint32> first = PhotoPixels(70, 50, 1);
    const std::vector<rgb_color> colors = PaletteOf(first, 16);
    std::vector<uint32> second = first;
    for (size_t i = 0; i < second.size(); i += 3)
        second[i] = 0xFF000000 | (second[i] + 0x204060);
    const AdaptiveMapper::Options options{.dither = AdaptiveDither::kOrdered};

    const std::vector<uint8> before = Map(first, 70, colors, options);
    const std::vector<uint8> after = Map(second, 70, colors, options);

    for (size_t i = 0; i < first.size(); ++i) {
        if (i % 3 == 0) continue;
        ASSERT_EQ(before[i], after[i]) << i;
    }
}

TEST(AdaptiveMapper, OfNoStrengthItDoesNotDither) {
    const std::vector<uint32> argb = PhotoPixels(61, 47);
    const std::vector<rgb_color> colors = PaletteOf(argb, 12);
    const std::vector<uint8> nearest = Map(argb, 61, colors, {});
    for (const AdaptiveDither dither :
         {AdaptiveDither::kErrorDiffusion, AdaptiveDither::kOrdered}) {
        EXPECT_NE(Map(argb, 61, colors, {.dither = dither}), nearest);
        EXPECT_EQ(Map(argb, 61, colors, {.dither = dither, .strength = 0}), nearest);
    }
}

TEST(AdaptiveMapper, TheWeakerItIsTheFewerPixelsItMixes) {
    const std::vector<uint32> argb = PhotoPixels(61, 47);
    const std::vector<rgb_color> colors = PaletteOf(argb, 12);
    const std::vector<uint8> nearest = Map(argb, 61, colors, {});
    for (const AdaptiveDither dither :
         {AdaptiveDither::kErrorDiffusion, AdaptiveDither::kOrdered}) {
        std::vector<size_t> mixed;
        for (const int32 strength : {1, 25, 50, 75, 100}) {
            const auto indices = Map(argb, 61, colors, {.dither = dither, .strength = strength});
            size_t others = 0;
            for (size_t i = 0; i < indices.size(); ++i)
                others += indices[i] != nearest[i] ? 1u : 0u;
            mixed.push_back(others);
        }
        EXPECT_TRUE(std::is_sorted(mixed.begin(), mixed.end()));
        EXPECT_LT(mixed.front(), mixed[2]);
        EXPECT_LT(mixed[2], mixed.back());
    }
}

TEST(AdaptiveMapper, OfHalfTheStrengthAMiddleGreyIsStillMixedEvenly) {
    const std::vector<uint32> argb(64 * 64, 0xFF7F7F7F);
    const auto indices =
        Map(argb, 64, kBlackAndWhite, {.dither = AdaptiveDither::kOrdered, .strength = 50});
    const auto white = std::count(indices.begin(), indices.end(), 1);
    EXPECT_NEAR(static_cast<double>(white), 64 * 32, 64);
}

TEST(AdaptiveMapper, OrderedTakesRowsInAnyOrder) {
    const std::vector<uint32> argb = PhotoPixels(70, 40);
    const std::vector<uint8> bytes = BytesOf(argb);
    const std::vector<rgb_color> colors = PaletteOf(argb, 16);
    const AdaptiveMapper::Options options{.dither = AdaptiveDither::kOrdered};
    AdaptiveMapper mapper(colors, 70, B_RGB32, options);
    std::vector<uint8> indices(argb.size());
    for (size_t y = 40; y-- > 0;)
        mapper.MapRow(static_cast<int32>(y), bytes.data() + y * 280, indices.data() + y * 70);

    EXPECT_EQ(indices, Map(argb, 70, colors, options));
}

TEST(AdaptiveMapper, OrderedMixesTwoEntriesMoreEvenlyTheNearerTheColorIsToTheirMiddle) {
    for (const uint32 level : {0U, 40U, 63U, 64U, 90U, 128U, 160U, 191U, 192U, 230U, 255U}) {
        const std::vector<uint32> argb(32 * 32, 0xFF000000 | level * 0x010101);
        const std::vector<uint8> indices =
            Map(argb, 32, kBlackAndWhite, {.dither = AdaptiveDither::kOrdered});
        const double white = static_cast<double>(std::ranges::count(indices, 1)) / (32 * 32);
        EXPECT_NEAR(white, std::clamp(2 * level / 255.0 - 0.5, 0.0, 1.0), 0.002) << level;
    }
}

TEST(AdaptiveMapper, DiffusionKeepsTheMeanOfAnAreaNearer) {
    for (const uint32 level : {60U, 110U, 128U, 150U}) {
        const std::vector<uint32> argb(64 * 64, 0xFF000000 | level * 0x010101);
        const std::vector<uint8> indices =
            Map(argb, 64, kBlackAndWhite, {.dither = AdaptiveDither::kErrorDiffusion});
        const double white = static_cast<double>(std::ranges::count(indices, 1)) / (64 * 64);
        EXPECT_NEAR(white, level / 255.0, 0.2) << level;
        EXPECT_LT(std::abs(white - level / 255.0),
                  std::abs((level < 128 ? 0.0 : 1.0) - level / 255.0));
    }
}

TEST(AdaptiveMapper, DiffusionStartsAgainWithEachPicture) {
    const std::vector<uint32> argb = PhotoPixels(50, 20);
    const std::vector<uint8> bytes = BytesOf(argb);
    const std::vector<rgb_color> colors = PaletteOf(argb, 8);
    const AdaptiveMapper::Options options{.dither = AdaptiveDither::kErrorDiffusion};
    const std::vector<uint8> expected = Map(argb, 50, colors, options);
    AdaptiveMapper mapper(colors, 50, B_RGB32, options);
    for (int picture = 0; picture < 2; ++picture) {
        std::vector<uint8> indices(argb.size());
        for (size_t y = 0; y < 20; ++y)
            mapper.MapRow(static_cast<int32>(y), bytes.data() + y * 200, indices.data() + y * 50);
        EXPECT_EQ(indices, expected) << picture;
    }
}

TEST(AdaptiveMapper, TransparentPixelsBecomeTheTransparentIndexAndNothingElseDoes) {
    std::vector<uint32> argb = PhotoPixels(64, 32);
    for (size_t i = 0; i < argb.size(); ++i)
        argb[i] = (argb[i] & 0xFFFFFF) | static_cast<uint32>(i % 256) << 24;
    const std::vector<rgb_color> colors = PaletteOf(argb, 32);
    for (const AdaptiveDither dither : kDithers) {
        const std::vector<uint8> indices =
            Map(argb, 64, colors, {.dither = dither, .transparent_index = 5});
        for (size_t i = 0; i < argb.size(); ++i)
            ASSERT_EQ(indices[i] == 5, argb[i] >> 24 < 128) << i;
    }
}

TEST(AdaptiveMapper, LaysSoftEdgesOnTheMatte) {
    const std::vector<rgb_color> colors = {{0, 0, 0, 255}, {255, 0, 0, 255}, {127, 0, 0, 255}};
    const std::vector<uint32> argb = {0x80000000, 0xFF000000, 0x7F000000};
    AdaptiveMapper::Options options{.matte = {255, 0, 0, 255}};
    EXPECT_EQ(Map(argb, 3, colors, options), (std::vector<uint8>{2, 0, 2}));
    options.transparent_index = 255;
    EXPECT_EQ(Map(argb, 3, colors, options), (std::vector<uint8>{2, 0, 255}));
}

TEST(AdaptiveMapper, WithoutMemoryForErrorsMapsWithoutDiffusion) {
    const std::vector<uint32> argb = PhotoPixels(30, 1);
    const std::vector<uint8> bytes = BytesOf(argb);
    const std::vector<rgb_color> colors = PaletteOf(argb, 4);
    const AllocationFault fault(1);
    AdaptiveMapper mapper(colors, 30, B_RGB32, {.dither = AdaptiveDither::kErrorDiffusion});
    EXPECT_FALSE(mapper.HasMemory());
    std::vector<uint8> indices(30);

    mapper.MapRow(0, bytes.data(), indices.data());

    for (size_t i = 0; i < argb.size(); ++i)
        EXPECT_EQ(indices[i], PlainNearest(colors, argb[i] & 0xFFFFFF));
}

TEST(AdaptiveMapper, TakesRowsOfAnyWidthAndPalettesOfAnySize) {
    for (const AdaptiveDither dither : kDithers) {
        for (const int32 width : {0, 1, 2, 65535}) {
            const std::vector<uint32> argb(static_cast<size_t>(width), 0xFF808080);
            for (const size_t size : {1U, 2U}) {
                const auto colors = std::span(kBlackAndWhite).first(size);
                const std::vector<uint8> bytes = BytesOf(argb);
                std::vector<uint8> indices(argb.size());
                AdaptiveMapper mapper(colors, width, B_RGB32, {.dither = dither});
                for (int32 y = 65533; y < 65536; ++y)
                    mapper.MapRow(y, bytes.data(), indices.data());
                EXPECT_TRUE(std::ranges::all_of(indices, [&](uint8 i) { return i < size; }));
            }
        }
    }
}

TEST(AdaptiveMapper, SurvivesOpaquePixelsWithNoEntryButTheTransparentOne) {
    const std::vector<uint32> argb(64 * 64, 0xFF102030);
    for (const AdaptiveDither dither : kDithers) {
        EXPECT_EQ(Map(argb, 64, std::span(kBlackAndWhite).first(1),
                      {.dither = dither, .transparent_index = 0}),
                  std::vector<uint8>(64 * 64, 0));
    }
}

}  // namespace kirto::test
