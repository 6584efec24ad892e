#include "formats/gif/pixel_mapper.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <span>

#include "base/allocation.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

using Indices = std::vector<uint8>;
using testing::ElementsAre;

constexpr uint8 kTransparent = 7;

Palette BlackAndWhite() {
    Palette palette;
    palette.mode = kPaletteFromFile;
    palette.bits = 1;
    palette.size = 2;
    palette.colors[0] = {0, 0, 0, 255};
    palette.colors[1] = {255, 255, 255, 255};
    return palette;
}

Indices Row(PixelMapper& mapper, const kirto::Picture& bitmap, int32 y = 0) {
    const std::span<const uint8> indices = mapper.MapRow(&bitmap, y, bitmap.Width());
    return {indices.begin(), indices.end()};
}

// The rows of one picture, from the top.
Indices MapPicture(PixelMapper& mapper, const Palette& palette, const kirto::Picture& bitmap,
                   bool unconnected_rows = false) {
    mapper.StartPicture(palette, unconnected_rows);
    Indices all;
    for (int32 y = 0; y < bitmap.Height(); ++y) {
        const Indices row = Row(mapper, bitmap, y);
        all.insert(all.end(), row.begin(), row.end());
    }
    return all;
}

// Every pixel of the same grey.
std::shared_ptr<const kirto::Picture> Grey(int32 width, int32 height, uint32 level) {
    const size_t count = static_cast<size_t>(width) * static_cast<size_t>(height);
    return FramePictureOf(width, height, std::vector<uint32>(count, 0xFF000000 | level * 0x010101));
}

// Row y of the picture, two pixels wide.
std::vector<rgb_color> TwoColors(const kirto::Picture* picture, int32 y) {
    std::vector<rgb_color> colors;
    ReadColors(picture, y, 2, &colors);
    return colors;
}

TEST(ReadColors, ReadsTheFourColorSpacesOf32Bits) {
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        const auto picture = FramePictureOf(2, 2, {0, 0, 0, 0x80112233}, space);
        EXPECT_EQ(TwoColors(picture.get(), 1)[1], (rgb_color{0x11, 0x22, 0x33, 0x80}));
    }
}

TEST(ReadColors, GivesTransparentBlackElsewhere) {
    const std::vector<rgb_color> nothing(2);
    const auto narrow = kirto::Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(4, 4), B_CMAP8));
    const auto picture = FramePictureOf(1, 1, {0xFFFFFFFF});
    EXPECT_EQ(TwoColors(narrow.get(), 1), nothing);
    EXPECT_EQ(TwoColors(nullptr, 0), nothing);
    EXPECT_EQ(TwoColors(picture.get(), 0)[1], rgb_color{});
    EXPECT_EQ(TwoColors(picture.get(), 1), nothing);
}

TEST(PixelMapper, MapsColoursToTheNearestEntry) {
    const Palette palette = BlackAndWhite();
    PixelMapper mapper(kTransparent, false, 4);
    const auto picture = FramePictureOf(4, 1, {0xFF000000, 0xFF7F7F7F, 0xFF808080, 0xFFFFFFFF});
    EXPECT_EQ(MapPicture(mapper, palette, *picture), (Indices{0, 0, 1, 1}));
}

TEST(PixelMapper, AnyAlphaBelow255IsTheTransparentIndex) {
    const Palette palette = BlackAndWhite();
    for (const bool dither : {false, true}) {
        PixelMapper mapper(kTransparent, dither, 1);
        for (uint32 alpha = 0; alpha < 256; ++alpha) {
            const auto picture = FramePictureOf(1, 1, {alpha << 24 | 0xFFFFFF});
            const uint8 expected = alpha < 255 ? kTransparent : 1;
            EXPECT_EQ(MapPicture(mapper, palette, *picture), Indices{expected})
                << "alpha " << alpha;
        }
    }
}

TEST(PixelMapper, PixelsThatAreNotThereAreTransparent) {
    const Palette palette = BlackAndWhite();
    PixelMapper mapper(kTransparent, false, 3);
    mapper.StartPicture(palette, false);
    const auto picture = FramePictureOf(2, 1, {0xFFFFFFFF, 0xFFFFFFFF});
    EXPECT_THAT(mapper.MapRow(picture.get(), 0, 3), ElementsAre(1, 1, kTransparent));
    EXPECT_THAT(mapper.MapRow(nullptr, 0, 3),
                ElementsAre(kTransparent, kTransparent, kTransparent));
    EXPECT_EQ(
        Row(mapper, *kirto::Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(2, 1), B_RGB24))),
        (Indices{kTransparent, kTransparent}));
}

TEST(PixelMapper, ForgetsThePaletteBeforeWithEachPicture) {
    const Palette palette = BlackAndWhite();
    Palette reversed = palette;
    std::swap(reversed.colors[0], reversed.colors[1]);
    PixelMapper mapper(kTransparent, false, 1);
    const auto picture = Grey(1, 1, 255);
    EXPECT_EQ(MapPicture(mapper, palette, *picture), Indices{1});
    EXPECT_EQ(MapPicture(mapper, reversed, *picture), Indices{0});
}

TEST(PixelMapper, DitheringCarriesTheErrorAlongTheRow) {
    // 100 is black and leaves 44 to the next one, 144 is white.
    const Palette palette = BlackAndWhite();
    PixelMapper mapper(kTransparent, true, 2);
    EXPECT_EQ(MapPicture(mapper, palette, *Grey(2, 1, 100)), (Indices{0, 1}));
}

TEST(PixelMapper, DitheringStartsEachRowWithNothingCarried) {
    const Palette palette = BlackAndWhite();
    PixelMapper mapper(kTransparent, true, 1);
    EXPECT_EQ(MapPicture(mapper, palette, *Grey(1, 3, 100)), (Indices{0, 0, 0}));
}

TEST(PixelMapper, DitheringPassesTransparentPixelsOver) {
    const Palette palette = BlackAndWhite();
    PixelMapper mapper(kTransparent, true, 3);
    const auto picture = FramePictureOf(3, 1, {0xFF646464, 0xFEFFFFFF, 0xFF646464});
    EXPECT_EQ(MapPicture(mapper, palette, *picture), (Indices{0, kTransparent, 1}));
}

TEST(PixelMapper, DitheringHandsErrorsDownToTheNextRow) {
    // The upper right pixel's 127 are lost as black; 5/16 of them make the one below it white.
    const Palette palette = BlackAndWhite();
    PixelMapper mapper(kTransparent, true, 2);
    const auto picture = FramePictureOf(2, 2, {0xFF000000, 0xFF7F7F7F, 0xFF000000, 0xFF606060});
    EXPECT_EQ(MapPicture(mapper, palette, *picture), (Indices{0, 0, 0, 1}));
}

TEST(PixelMapper, RowsThatAreNoNeighboursGetNothingButTheLastPixelsOwnError) {
    // Cleared at the row's last pixel, before that pixel's own error is stored.
    const Palette palette = BlackAndWhite();
    PixelMapper mapper(kTransparent, true, 3);
    const auto inner = FramePictureOf(
        3, 2, {0xFF000000, 0xFF7F7F7F, 0xFF000000, 0xFF000000, 0xFF606060, 0xFF000000});
    EXPECT_EQ(MapPicture(mapper, palette, *inner, false), (Indices{0, 0, 0, 0, 1, 0}));
    EXPECT_EQ(MapPicture(mapper, palette, *inner, true), (Indices{0, 0, 0, 0, 0, 0}));
    const auto last = FramePictureOf(
        3, 2, {0xFF000000, 0xFF000000, 0xFF7F7F7F, 0xFF000000, 0xFF000000, 0xFF606060});
    EXPECT_EQ(MapPicture(mapper, palette, *last, true), (Indices{0, 0, 0, 0, 0, 1}));
}

TEST(PixelMapper, ATransparentLastPixelClearsTheRowsAllTheSame) {
    const Palette palette = BlackAndWhite();
    PixelMapper mapper(kTransparent, true, 3);
    const auto picture = FramePictureOf(
        3, 2, {0xFF000000, 0xFF7F7F7F, 0x00000000, 0xFF000000, 0xFF606060, 0xFF000000});
    EXPECT_EQ(MapPicture(mapper, palette, *picture, true), (Indices{0, 0, kTransparent, 0, 0, 0}));
}

TEST(PixelMapper, EachPictureStartsWithoutErrors) {
    const Palette palette = BlackAndWhite();
    PixelMapper mapper(kTransparent, true, 8);
    const auto picture = Grey(8, 1, 90);
    const Indices first = MapPicture(mapper, palette, *picture);
    EXPECT_EQ(MapPicture(mapper, palette, *picture), first);
}

TEST(PixelMapper, TheGreyRampIsNeverDithered) {
    const Palette grey(kPaletteGreyscale);
    PixelMapper mapper(kTransparent, true, 4);
    const auto picture = FramePictureOf(4, 1, {0xFF0000FF, 0xFF0000FF, 0xFF0000FF, 0xFF0000FF});
    EXPECT_EQ(MapPicture(mapper, grey, *picture), (Indices{63, 63, 63, 63}));
}

TEST(PixelMapper, WithoutMemoryForTheCacheItMapsTheSame) {
    Palette palette(kPaletteWebSafe);
    const auto picture = FramePictureOf(3, 1, {0xFF123456, 0xFFABCDEF, 0xFF123456});
    PixelMapper plenty(kTransparent, false, 3);
    const Indices expected = MapPicture(plenty, palette, *picture);
    // The memo's two blocks and the three rows, and none for the colours themselves.
    for (int32 call = 1; call <= 7; ++call) {
        const AllocationFault fault(call);
        PixelMapper mapper(kTransparent, false, 3);
        EXPECT_EQ(MapPicture(mapper, palette, *picture), expected) << "allocation " << call;
    }
}

TEST(PixelMapper, AsksForMemoryAFewTimesWhateverTheNumberOfColours) {
    std::vector<uint32> argb;
    for (uint32 i = 0; i < 10000; ++i)
        argb.push_back(0xFF000000U | i * 1000);
    const auto picture = FramePictureOf(10000, 1, argb);
    const Palette palette(kPaletteGreyscale);
    const AllocationFault fault(1000);
    PixelMapper mapper(kTransparent, false, 10000);

    const Indices indices = MapPicture(mapper, palette, *picture);

    EXPECT_LT(fault.Calls(), 20);
    for (uint32 i = 0; i < 10000; ++i) {
        const rgb_color color = PixelColor(picture.get(), static_cast<int32>(i), 0);
        ASSERT_EQ(indices[i], palette.IndexForColor(color));
    }
}

TEST(PixelMapper, WithoutMemoryForTheErrorsItDoesNotDither) {
    const Palette palette = BlackAndWhite();
    const auto picture = Grey(2, 1, 100);
    for (int32 call = 1; call <= 4; ++call) {
        const AllocationFault fault(call);
        PixelMapper mapper(kTransparent, true, 2);
        const Indices expected = call <= 3 ? Indices{0, 0} : Indices{0, 1};
        EXPECT_EQ(MapPicture(mapper, palette, *picture), expected) << "allocation " << call;
    }
}

}  // namespace

}  // namespace kirto::test
