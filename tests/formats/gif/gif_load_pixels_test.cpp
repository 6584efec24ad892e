// What an image's palette indices become, and where they go.
#include <gmock/gmock.h>

#include "formats/gif/gif_load_fixture.h"

namespace kirto::test {
namespace {

using testing::Each;
using testing::ElementsAre;

using GifLoadPixels = GifLoadTest;

constexpr uint32 kDrawnTransparent = 0x80FFFFFF;
constexpr uint32 kPlainTransparent = 0x80808080;

GifBuilder::Image Interlaced(GifBuilder::Image image) {
    image.interlaced = true;
    return image;
}

TEST_F(GifLoadPixels, AreTheColoursOfThePalette) {
    EXPECT_TRUE(Load(FourColorGif(2, 2).Add(ImageOf(2, 2, {0, 1, 2, 3})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kBlack, kRed, kGreen, kBlue));
}

TEST_F(GifLoadPixels, AnIndexPastTheTableYieldsWhatThePaletteHolds) {
    PaletteEditOf(document)->Set(kPaletteGreyscale);
    GifBuilder::Image image = ImageOf(2, 1, {200, 1});
    image.min_code_size = 8;

    EXPECT_TRUE(Load(FourColorGif(2, 1).Add(image).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(0xFFC8C8C8, kRed));
}

TEST_F(GifLoadPixels, AnIndexPastALocalTableYieldsTheWebSafeColour) {
    GifBuilder::Image image = ImageOf(1, 1, {4});
    image.min_code_size = 3;
    image.local_table = kFourColors;
    const rgb_color expected = kWebSafeColors[4];

    EXPECT_TRUE(Load(FourColorGif(1, 1).Add(image).Trailer()));

    EXPECT_EQ(Pixels(0)[0], 0xFF000000u | static_cast<uint32>(expected.red << 16) |
                                static_cast<uint32>(expected.green << 8) | expected.blue);
}

TEST_F(GifLoadPixels, AtFullSizeTransparentPixelsShowThePictureBefore) {
    EXPECT_TRUE(Load(FourColorGif(3, 1)
                         .Add(ImageOf(3, 1, {1, 1, 1}))
                         .Control(0, 0, 3)
                         .Add(ImageOf(2, 1, {3, 2}))
                         .Trailer()));

    EXPECT_THAT(Pixels(1), ElementsAre(kRed, kGreen, kRed));
}

TEST_F(GifLoadPixels, AtTheirOwnSizeTransparentPixelsAreHalfTransparentWhite) {
    EXPECT_TRUE(LoadRaw(FourColorGif(2, 1).Control(0, 0, 3).Add(ImageOf(2, 1, {3, 2})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kDrawnTransparent, kGreen));
}

TEST_F(GifLoadPixels, AtTheirOwnSizeTransparentPixelsAreGreyIfTransparencyIsNotDrawn) {
    prefs.thumbnail_drawtransparent = false;

    EXPECT_TRUE(LoadRaw(FourColorGif(2, 1).Control(0, 0, 3).Add(ImageOf(2, 1, {3, 2})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kPlainTransparent, kGreen));
}

TEST_F(GifLoadPixels, ATransparentIndexStillAppliesToLaterImagesWithoutControlBlock) {
    GifBuilder::Image local = ImageOf(2, 1, {3, 1});
    local.local_table = kFourColorsReversed;

    EXPECT_TRUE(LoadRaw(FourColorGif(2, 1)
                            .Control(0, 0, 3)
                            .Add(ImageOf(2, 1, {3, 2}))
                            .Add(ImageOf(2, 1, {3, 2}))
                            .Control(0, 0)
                            .Add(local)
                            .Trailer()));

    EXPECT_THAT(Pixels(1), ElementsAre(kDrawnTransparent, kGreen));
    EXPECT_THAT(Pixels(2), ElementsAre(kDrawnTransparent, kGreen));
}

TEST_F(GifLoadPixels, ATransparentIndexDoesNotReachBackToEarlierImages) {
    EXPECT_TRUE(LoadRaw(FourColorGif(1, 1)
                            .Add(ImageOf(1, 1, {3}))
                            .Control(0, 0, 3)
                            .Add(ImageOf(1, 1, {3}))
                            .Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kBlue));
    EXPECT_THAT(Pixels(1), ElementsAre(kDrawnTransparent));
}

TEST_F(GifLoadPixels, TheDocumentsOwnTransparentIndexApplies) {
    PaletteEditOf(document)->use_transparent = true;
    PaletteEditOf(document)->transparent_index = 2;

    EXPECT_TRUE(LoadRaw(FourColorGif(2, 1).Add(ImageOf(2, 1, {2, 1})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kDrawnTransparent, kRed));
}

TEST_F(GifLoadPixels, ATransparentIndexOutsideThePaletteMatchesNothing) {
    PaletteEditOf(document)->use_transparent = true;
    for (const int32 index : {-1, 256, 257, 1000}) {
        document.Reset();
        PaletteEditOf(document)->use_transparent = true;
        PaletteEditOf(document)->transparent_index = index;
        EXPECT_TRUE(LoadRaw(FourColorGif(2, 1).Add(ImageOf(2, 1, {0, 1})).Trailer()));
        EXPECT_THAT(Pixels(0), ElementsAre(kBlack, kRed)) << index;
    }
}

TEST_F(GifLoadPixels, InterlacedRowsGoToTheirPlaces) {
    const GifBuilder::Image image = Interlaced(ImageOf(1, 5, {0, 1, 2, 3, 1}));
    const GifBuilder gif = FourColorGif(1, 5).Add(image).Trailer();

    EXPECT_TRUE(LoadRaw(gif));
    EXPECT_THAT(Pixels(0), ElementsAre(kBlack, kBlue, kGreen, kRed, kRed));

    document.Reset();
    prefs.animation_gifloadfullframe = true;
    EXPECT_TRUE(Load(gif));
    EXPECT_THAT(Pixels(0), ElementsAre(kBlack, kBlue, kGreen, kRed, kRed));
}

TEST_F(GifLoadPixels, InterlacingHoldsForItsImageOnly) {
    EXPECT_TRUE(Load(FourColorGif(1, 3)
                         .Add(Interlaced(ImageOf(1, 3, {1, 2, 3})))
                         .Add(ImageOf(1, 3, {1, 2, 3}))
                         .Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kRed, kBlue, kGreen));
    EXPECT_THAT(Pixels(1), ElementsAre(kRed, kGreen, kBlue));
}

TEST_F(GifLoadPixels, AtFullSizeAnInterlacedImageStandsAtItsPlace) {
    const GifBuilder::Image image = Interlaced(ImageAt(1, 1, 1, 3, {1, 2, 3}));

    EXPECT_TRUE(Load(FourColorGif(2, 4).Add(image).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kUnpainted, kUnpainted,  //
                                       kUnpainted, kRed,        //
                                       kUnpainted, kBlue,       //
                                       kUnpainted, kGreen));
}

TEST_F(GifLoadPixels, AtFullSizeWhatOverhangsTheScreenIsDroppedAndRowsDoNotWrap) {
    EXPECT_TRUE(Load(FourColorGif(3, 2).Add(ImageAt(2, 1, 3, 2, {1, 2, 2, 3, 2, 2})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kUnpainted, kUnpainted, kUnpainted,  //
                                       kUnpainted, kUnpainted, kRed));
}

TEST_F(GifLoadPixels, AnImageThatDeliversTooFewKeepsTheRestUnpainted) {
    const GifBuilder gif = FourColorGif(2, 2).Add(ImageOf(2, 2, {1, 2, 3})).Trailer();

    EXPECT_TRUE(LoadRaw(gif));
    EXPECT_THAT(Pixels(0), ElementsAre(kRed, kGreen, kBlue, kUnpainted));
}

TEST_F(GifLoadPixels, AnImageThatDeliversTooManyDropsTheRest) {
    for (const bool interlaced : {false, true}) {
        document.Reset();
        GifBuilder::Image image = ImageOf(2, 1, {1, 2, 3, 3, 3, 3});
        image.interlaced = interlaced;
        EXPECT_TRUE(Load(FourColorGif(2, 2).Add(image).Trailer()));
        EXPECT_THAT(Pixels(0), ElementsAre(kRed, kGreen, kUnpainted, kUnpainted));
    }
}

TEST_F(GifLoadPixels, DataThatEndsWithoutAnEndCodeEndsTheImageNormally) {
    GifBuilder::Image image = ImageOf(2, 1, {});
    image.min_code_size = 7;

    EXPECT_TRUE(
        Load(FourColorGif(2, 1).AddCodes(image, {128, 1, 2}).Add(ImageOf(2, 1, {2, 2})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kRed, kGreen));
    EXPECT_THAT(Pixels(1), Each(kGreen));
}

TEST_F(GifLoadPixels, FramesWithoutAllOfTheirPixelsCountAsDamaged) {
    EXPECT_TRUE(Load(FourColorGif(2, 2)
                         .Add(ImageOf(2, 2, {1, 2, 3, 3}))
                         .Add(ImageOf(2, 2, {1, 2, 3}))
                         .Add(ImageOf(2, 2, {1, 2, 3, 3}))
                         .Trailer()));

    EXPECT_FALSE(document.FrameAt(0)->damaged);
    EXPECT_TRUE(document.FrameAt(1)->damaged);
    EXPECT_FALSE(document.FrameAt(2)->damaged);
}

TEST_F(GifLoadPixels, AClearCodeFollowedByTheEndCodeFails) {
    EXPECT_FALSE(Load(FourColorGif(1, 1)
                          .Add(ImageOf(1, 1, {1}))
                          .AddCodes(ImageOf(1, 1, {}), {4, 2, 4, 5})
                          .Trailer()));

    EXPECT_EQ(debug_text, "GifLoad::ReadGifImageData() - Premature end_code or error\n");
    EXPECT_EQ(document.FrameCount(), 1);
}

TEST_F(GifLoadPixels, WhatFollowsTheEndCodeIsSkipped) {
    std::vector<uint8> codes = GifBuilder::SubBlocks(GifBuilder::PackCodes(2, {4, 1, 5}));
    codes.pop_back();
    GifBuilder gif = FourColorGif(1, 1);
    gif.Bytes({0x2C, 0, 0, 0, 0, 1, 0, 1, 0, 0, 2}).Bytes(codes).Bytes({3, 0x2C, 0x3B, 0x21, 0});

    EXPECT_TRUE(Load(gif.Add(ImageOf(1, 1, {2})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kRed));
    EXPECT_THAT(Pixels(1), ElementsAre(kGreen));
}

TEST_F(GifLoadPixels, AnImageWhoseTerminatorIsMissingIsKept) {
    std::vector<uint8> file = FourColorGif(1, 1).Add(ImageOf(1, 1, {1}));
    file.pop_back();

    EXPECT_FALSE(Load(file));

    EXPECT_THAT(Pixels(0), ElementsAre(kRed));
}

TEST_F(GifLoadPixels, LargeImagesOfManyCodesDecodeWhole) {
    std::vector<uint8> indices;
    for (int32 i = 0; i < 100 * 100; ++i)
        indices.push_back(static_cast<uint8>(i * 7 % 4));

    EXPECT_TRUE(Load(FourColorGif(100, 100).Add(ImageOf(100, 100, indices)).Trailer()));

    const std::vector<uint32> pixels = Pixels(0);
    const uint32 colors[] = {kBlack, kRed, kGreen, kBlue};
    for (size_t i = 0; i < indices.size(); ++i)
        ASSERT_EQ(pixels[i], colors[indices[i]]) << i;
}

}  // namespace
}  // namespace kirto::test
