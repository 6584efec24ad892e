// From an image's descriptor to the picture it starts from: sizes, palettes, code size, disposal.
#include <gmock/gmock.h>

#include "formats/gif/gif_load_fixture.h"

namespace kirto::test {
namespace {

using testing::Each;
using testing::ElementsAre;

using GifLoadImages = GifLoadTest;

constexpr char kTooLarge[] =
    "GifLoad::ReadGifImageHeader() - Local dimensions exceed global dimensions\n";

GifBuilder::Image WithLocalTable(GifBuilder::Image image, const std::vector<uint32>& table) {
    image.local_table = table;
    return image;
}

GifBuilder::Image WithCodeSize(GifBuilder::Image image, int32 min_code_size) {
    image.min_code_size = min_code_size;
    return image;
}

TEST_F(GifLoadImages, AnImageWiderOrHigherThanTheScreenFails) {
    EXPECT_FALSE(Load(FourColorGif(2, 2).Add(ImageOf(3, 1, {1, 1, 1})).Trailer()));
    EXPECT_EQ(debug_text, kTooLarge);

    EXPECT_FALSE(Load(FourColorGif(2, 2).Add(ImageOf(1, 3, {1, 1, 1})).Trailer()));
    EXPECT_EQ(debug_text, kTooLarge);
    EXPECT_EQ(document.FrameCount(), 0);
}

TEST_F(GifLoadImages, AnImageThatOverhangsTheScreenWithoutBeingLargerPasses) {
    EXPECT_TRUE(Load(FourColorGif(2, 2).Add(ImageAt(1, 1, 2, 2, {1, 2, 3, 0})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kUnpainted, kUnpainted, kUnpainted, kRed));
}

TEST_F(GifLoadImages, AnImageAltogetherOutsideTheScreenPasses) {
    EXPECT_TRUE(Load(FourColorGif(2, 2).Add(ImageAt(65535, 65535, 1, 1, {1})).Trailer()));

    EXPECT_THAT(Pixels(0), Each(kUnpainted));
}

TEST_F(GifLoadImages, AtFullSizeAFrameHasTheScreensRectangle) {
    EXPECT_TRUE(Load(FourColorGif(3, 2).Add(ImageAt(1, 1, 2, 1, {1, 2})).Trailer()));

    const Frame& frame = FrameOf(0);
    EXPECT_EQ(frame.bitmap->Width(), 3);
    EXPECT_EQ(frame.bitmap->Height(), 2);
    EXPECT_EQ(frame.bitmap->ColorSpace(), B_RGB32);
    EXPECT_EQ(frame.width, 3);
    EXPECT_EQ(frame.height, 2);
    EXPECT_EQ(frame.x_offset, 0);
    EXPECT_EQ(frame.y_offset, 0);
}

TEST_F(GifLoadImages, AtItsOwnSizeAFrameKeepsItsPlace) {
    EXPECT_TRUE(LoadRaw(FourColorGif(3, 2).Add(ImageAt(2, 1, 2, 1, {1, 2})).Trailer()));

    const Frame& frame = FrameOf(0);
    EXPECT_EQ(frame.width, 2);
    EXPECT_EQ(frame.height, 1);
    EXPECT_EQ(frame.x_offset, 2);
    EXPECT_EQ(frame.y_offset, 1);
    // Nothing is clipped: the picture is as large as the image.
    EXPECT_THAT(Pixels(0), ElementsAre(kRed, kGreen));
}

TEST_F(GifLoadImages, AnImageWithoutPixelsFailsAtItsOwnSize) {
    EXPECT_FALSE(LoadRaw(FourColorGif(2, 2).Add(ImageOf(0, 1, {})).Trailer()));
    EXPECT_FALSE(LoadRaw(FourColorGif(2, 2).Add(ImageOf(1, 0, {})).Trailer()));
    EXPECT_EQ(document.FrameCount(), 0);
}

TEST_F(GifLoadImages, AnImageWithoutPixelsIsAnEmptyFrameAtFullSize) {
    EXPECT_TRUE(
        Load(FourColorGif(2, 1).Add(ImageOf(0, 1, {1, 2})).Add(ImageOf(1, 0, {1, 2})).Trailer()));

    EXPECT_EQ(document.FrameCount(), 2);
    EXPECT_THAT(Pixels(0), Each(kUnpainted));
    EXPECT_THAT(Pixels(1), Each(kUnpainted));
}

TEST_F(GifLoadImages, AScreenWithoutPixelsTakesNoImage) {
    EXPECT_FALSE(Load(FourColorGif(0, 1).Add(ImageOf(0, 1, {})).Trailer()));
    EXPECT_FALSE(Load(FourColorGif(1, 0).Add(ImageOf(1, 0, {})).Trailer()));
    EXPECT_EQ(document.FrameCount(), 0);
}

TEST_F(GifLoadImages, ALocalTableBecomesTheFramesPalette) {
    const GifBuilder::Image image = WithLocalTable(ImageOf(3, 1, {1, 2, 1}), kFourColorsReversed);

    EXPECT_TRUE(Load(FourColorGif(3, 1).Add(image).Trailer()));

    const Frame& frame = FrameOf(0);
    EXPECT_TRUE(frame.local_palette);
    EXPECT_EQ(frame.palette->mode, kPaletteFromFile);
    EXPECT_EQ(frame.palette->bits, 2);
    EXPECT_EQ(frame.palette->size, 4);
    EXPECT_EQ(frame.palette->unique_colors, 2);
    EXPECT_EQ(frame.palette->colors[2], (rgb_color{255, 0, 0, 255}));
    EXPECT_THAT(Pixels(0), ElementsAre(kGreen, kRed, kGreen));
    EXPECT_EQ(GlobalPalette().colors[2], (rgb_color{0, 255, 0, 255}));
}

TEST_F(GifLoadImages, WithoutALocalTableTheFramesPaletteIsMadeFromItsPicture) {
    EXPECT_TRUE(Load(FourColorGif(3, 1).Add(ImageOf(3, 1, {2, 2, 1})).Trailer()));

    const Frame& frame = FrameOf(0);
    EXPECT_FALSE(frame.local_palette);
    EXPECT_EQ(frame.palette->mode, kPaletteOptimal);
    EXPECT_EQ(frame.palette->unique_colors, 2);
    EXPECT_EQ(frame.palette->colors[0], (rgb_color{0, 255, 0, 255}));
}

TEST_F(GifLoadImages, ALocalTableHoldsForItsImageOnly) {
    const GifBuilder::Image local = WithLocalTable(ImageOf(1, 1, {1}), kFourColorsReversed);

    EXPECT_TRUE(Load(FourColorGif(1, 1).Add(local).Add(ImageOf(1, 1, {1})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kGreen));
    EXPECT_THAT(Pixels(1), ElementsAre(kRed));
}

TEST_F(GifLoadImages, ADescriptorOrTableThatIsCutShortFails) {
    const std::vector<uint8> header = FourColorGif(1, 1);
    const GifBuilder::Image image = WithLocalTable(ImageOf(1, 1, {1}), kFourColorsReversed);
    const std::vector<uint8> whole = FourColorGif(1, 1).Add(image).Trailer();
    for (size_t size = header.size(); size < header.size() + 1 + 9 + 12; ++size) {
        EXPECT_FALSE(Load({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)}));
        EXPECT_EQ(debug_text, "") << size;
    }
}

TEST_F(GifLoadImages, AMissingCodeSizeCountsAsZeroAndFails) {
    const std::vector<uint8> descriptor = {0x2C, 0, 0, 0, 0, 1, 0, 1, 0, 0};

    EXPECT_FALSE(Load(FourColorGif(1, 1).Bytes(descriptor)));

    EXPECT_EQ(debug_text,
              "GifLoad::ReadGifImageData() - Code_size should be 2, but was in fact 0\n");
}

TEST_F(GifLoadImages, ACodeSizeOf1IsTreatedAs2) {
    const std::vector<uint32> two_colors = {0x000000, 0xFF0000};

    EXPECT_TRUE(Load(
        GifBuilder(3, 1, two_colors).Add(WithCodeSize(ImageOf(3, 1, {1, 0, 1}), 1)).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kRed, kBlack, kRed));
    EXPECT_EQ(debug_text, "");
}

TEST_F(GifLoadImages, APaletteOfOneBitExpectsACodeSizeOf2) {
    const std::vector<uint32> two_colors = {0x000000, 0xFF0000};

    EXPECT_TRUE(Load(GifBuilder(1, 1, two_colors).Add(ImageOf(1, 1, {1})).Trailer()));

    EXPECT_EQ(debug_text, "");
}

TEST_F(GifLoadImages, ACodeSizeAbovePaletteDepthIsAllowedWithALine) {
    EXPECT_TRUE(Load(FourColorGif(1, 1).Add(WithCodeSize(ImageOf(1, 1, {1}), 8)).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kRed));
    EXPECT_EQ(debug_text,
              "GifLoad::ReadGifImageData() - Code_size should be 2, but was in fact 8, allowing "
              "it\n");
}

TEST_F(GifLoadImages, ACodeSizeBelowPaletteDepthFails) {
    const std::vector<uint32> eight_colors(8, 0xFF0000);

    EXPECT_FALSE(Load(GifBuilder(1, 1, eight_colors).Add(ImageOf(1, 1, {1})).Trailer()));

    EXPECT_EQ(debug_text,
              "GifLoad::ReadGifImageData() - Code_size should be 3, but was in fact 2\n");
}

TEST_F(GifLoadImages, ACodeSizeOf1FailsForADeeperPalette) {
    const std::vector<uint32> eight_colors(8, 0xFF0000);

    EXPECT_FALSE(
        Load(GifBuilder(1, 1, eight_colors).Add(WithCodeSize(ImageOf(1, 1, {1}), 1)).Trailer()));

    EXPECT_EQ(debug_text,
              "GifLoad::ReadGifImageData() - Code_size should be 3, but was in fact 1\n");
}

TEST_F(GifLoadImages, TheCodeSizeIsHeldAgainstTheLocalTable) {
    const std::vector<uint32> eight_colors(8, 0xFF0000);
    const GifBuilder::Image narrow = WithLocalTable(ImageOf(1, 1, {1}), eight_colors);
    EXPECT_FALSE(Load(FourColorGif(1, 1).Add(narrow).Trailer()));

    const GifBuilder::Image wide = WithLocalTable(ImageOf(1, 1, {1}), kFourColors);
    EXPECT_TRUE(Load(GifBuilder(1, 1, eight_colors).Add(wide).Trailer()));
    EXPECT_EQ(debug_text, "");
}

TEST_F(GifLoadImages, WithoutAnyTableTheCodeSizeMustBe8) {
    EXPECT_FALSE(Load(GifBuilder(1, 1).Add(WithCodeSize(ImageOf(1, 1, {1}), 7)).Trailer()));
    EXPECT_EQ(debug_text,
              "GifLoad::ReadGifImageData() - Code_size should be 8, but was in fact 7\n");

    EXPECT_TRUE(Load(GifBuilder(1, 1).Add(WithCodeSize(ImageOf(1, 1, {1}), 8)).Trailer()));
    EXPECT_THAT(Pixels(0),
                ElementsAre(0xFF000000 | static_cast<uint32>(kWebSafeColors[1].red << 16 |
                                                             kWebSafeColors[1].green << 8 |
                                                             kWebSafeColors[1].blue)));
}

TEST_F(GifLoadImages, CodeSizesFrom9To11DecodeWithValuesCutTo8Bits) {
    for (int32 size = 9; size <= 11; ++size) {
        document.Reset();
        const GifBuilder::Image image = WithCodeSize(ImageOf(2, 1, {}), size);
        const int32 clear = 1 << size;
        EXPECT_TRUE(
            Load(FourColorGif(2, 1).AddCodes(image, {clear, 0x101, 0x002, clear + 1}).Trailer()));
        EXPECT_THAT(Pixels(0), ElementsAre(kRed, kGreen)) << size;
    }
}

TEST_F(GifLoadImages, CodeSizesFrom12UpFail) {
    for (const int32 size : {12, 13, 31, 32, 64, 255}) {
        std::vector<uint8> file = FourColorGif(1, 1).Add(ImageOf(1, 1, {1})).Trailer();
        file[13 + 12 + 10] = static_cast<uint8>(size);
        EXPECT_FALSE(Load(file));
        EXPECT_EQ(debug_text,
                  "GifLoad::ReadGifImageData() - Code_size should be 2, but was in fact " +
                      std::to_string(size) + "\n");
    }
}

// Disposal. The screen is two pixels wide; what an image does not cover shows the picture before.

TEST_F(GifLoadImages, DisposalOfZeroAndOneKeepsThePictureBefore) {
    for (const int32 disposal : {0, 1}) {
        document.Reset();
        EXPECT_TRUE(Load(FourColorGif(2, 1, 3)
                             .Control(disposal, 0)
                             .Add(ImageOf(2, 1, {1, 1}))
                             .Control(0, 0)
                             .Add(ImageOf(1, 1, {2}))
                             .Trailer()));
        EXPECT_THAT(Pixels(1), ElementsAre(kGreen, kRed)) << disposal;
    }
}

TEST_F(GifLoadImages, DisposalOfTwoClearsTheWholeCanvasNotOnlyTheImagesRectangle) {
    EXPECT_TRUE(Load(FourColorGif(3, 1, 3)
                         .Add(ImageOf(3, 1, {1, 1, 1}))
                         .Control(2, 0)
                         .Add(ImageOf(1, 1, {2}))
                         .Control(0, 0)
                         .Add(ImageAt(1, 0, 1, 1, {2}))
                         .Trailer()));

    // The first control block's disposal stands for the image without one as well.
    EXPECT_THAT(Pixels(1), ElementsAre(kGreen, kBlue, kBlue));
    EXPECT_THAT(Pixels(2), ElementsAre(kBlue, kGreen, kBlue));
}

TEST_F(GifLoadImages, DisposalOfThreeAndAboveIsDisposalOfTwo) {
    for (const int32 disposal : {2, 3, 4, 5, 6, 7}) {
        document.Reset();
        EXPECT_TRUE(Load(FourColorGif(2, 1, 3)
                             .Control(disposal, 0)
                             .Add(ImageOf(2, 1, {1, 1}))
                             .Control(0, 0)
                             .Add(ImageOf(1, 1, {2}))
                             .Trailer()));
        EXPECT_THAT(Pixels(1), ElementsAre(kGreen, kBlue)) << disposal;
    }
}

TEST_F(GifLoadImages, WithoutControlBlocksThePictureBeforeIsKept) {
    EXPECT_TRUE(
        Load(FourColorGif(2, 1, 3).Add(ImageOf(2, 1, {1, 1})).Add(ImageOf(1, 1, {2})).Trailer()));

    EXPECT_THAT(Pixels(1), ElementsAre(kGreen, kRed));
}

TEST_F(GifLoadImages, TheDisposalBeforeAnImageWithoutItsOwnControlBlockIsNotApplied) {
    EXPECT_TRUE(Load(FourColorGif(2, 1, 3)
                         .Control(0, 0)
                         .Add(ImageOf(2, 1, {1, 1}))
                         .Control(2, 0)
                         .Add(ImageOf(1, 1, {2}))
                         .Add(ImageAt(1, 0, 1, 1, {0}))
                         .Trailer()));

    EXPECT_THAT(Pixels(2), ElementsAre(kGreen, kBlack));
}

TEST_F(GifLoadImages, TheCanvasIsClearedToTheCurrentPalettesColourAtTheBackgroundIndex) {
    EXPECT_TRUE(Load(FourColorGif(2, 1, 1)
                         .Control(2, 0)
                         .Add(ImageOf(2, 1, {0, 0}))
                         .Control(0, 0)
                         .Add(WithLocalTable(ImageOf(1, 1, {0}), kFourColorsReversed))
                         .Trailer()));

    EXPECT_THAT(Pixels(1), ElementsAre(kBlue, kGreen));
}

TEST_F(GifLoadImages, ABackgroundIndexPastTheTableYieldsWhatThePaletteHolds) {
    PaletteEditOf(document)->Set(kPaletteGreyscale);

    EXPECT_TRUE(Load(FourColorGif(2, 1, 200).Control(2, 0).Add(ImageOf(1, 1, {1})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kRed, 0xFFC8C8C8));
}

TEST_F(GifLoadImages, AFullSizeImageStartsFromAnEmptyPicture) {
    // Its transparent pixels do not show the picture before.
    EXPECT_TRUE(Load(FourColorGif(2, 1)
                         .Add(ImageOf(2, 1, {1, 1}))
                         .Control(0, 0, 3)
                         .Add(ImageOf(2, 1, {2, 3}))
                         .Trailer()));

    EXPECT_THAT(Pixels(1), ElementsAre(kGreen, kUnpainted));
}

TEST_F(GifLoadImages, AFullSizeImageThatOverhangsStartsFromAnEmptyPictureToo) {
    EXPECT_TRUE(Load(
        FourColorGif(2, 1).Add(ImageOf(2, 1, {1, 1})).Add(ImageAt(1, 0, 2, 1, {2, 2})).Trailer()));

    EXPECT_THAT(Pixels(1), ElementsAre(kUnpainted, kGreen));
}

TEST_F(GifLoadImages, ASmallFirstImageIsPutOnTheBackgroundOnlyIfItsDisposalIsTwo) {
    const GifBuilder::Image small = ImageOf(1, 1, {1});
    EXPECT_TRUE(Load(FourColorGif(2, 1, 3).Control(2, 0).Add(small).Trailer()));
    EXPECT_THAT(Pixels(0), ElementsAre(kRed, kBlue));

    document.Reset();
    EXPECT_TRUE(Load(FourColorGif(2, 1, 3).Control(1, 0).Add(small).Trailer()));
    EXPECT_THAT(Pixels(0), ElementsAre(kRed, kUnpainted));

    document.Reset();
    EXPECT_TRUE(Load(FourColorGif(2, 1, 3).Add(small).Trailer()));
    EXPECT_THAT(Pixels(0), ElementsAre(kRed, kUnpainted));
}

TEST_F(GifLoadImages, AFirstImageThatCoversTheScreenGetsNoBackground) {
    EXPECT_TRUE(Load(FourColorGif(2, 1, 3).Control(2, 0, 0).Add(ImageOf(2, 1, {1, 0})).Trailer()));

    EXPECT_THAT(Pixels(0), ElementsAre(kRed, kUnpainted));
}

TEST_F(GifLoadImages, AtTheirOwnSizeImagesAreNotComposited) {
    EXPECT_TRUE(LoadRaw(FourColorGif(2, 1, 3)
                            .Control(2, 0)
                            .Add(ImageOf(2, 1, {1, 1}))
                            .Control(2, 0)
                            .Add(ImageOf(1, 1, {2}))
                            .Trailer()));

    EXPECT_THAT(Pixels(1), ElementsAre(kGreen));
}

TEST_F(GifLoadImages, FramesThatWereThereBeforeAreNotPartOfThePicture) {
    AppendFrame(document, PictureOf(2, 1, {kBlue, kBlue}), "before");

    EXPECT_TRUE(Load(FourColorGif(2, 1).Add(ImageOf(1, 1, {1})).Trailer(), 1));

    EXPECT_THAT(Pixels(1), ElementsAre(kRed, kUnpainted));
}

TEST_F(GifLoadImages, FramesThatRepeatAPictureHaveItsPalette) {
    const GifBuilder::Image dot = ImageOf(1, 1, {1});
    EXPECT_TRUE(
        Load(FourColorGif(2, 1).Add(dot).Add(dot).Add(dot).Add(ImageOf(1, 1, {2})).Trailer()));

    ASSERT_EQ(document.FrameCount(), 4);
    EXPECT_TRUE(FrameOf(2).bitmap->Repeats(*FrameOf(0).bitmap));
    EXPECT_EQ(*FrameOf(2).palette, *FrameOf(0).palette);
    EXPECT_EQ(FrameOf(2).palette->unique_colors, 2);
    EXPECT_FALSE(FrameOf(3).bitmap->Repeats(*FrameOf(2).bitmap));
    EXPECT_NE(*FrameOf(3).palette, *FrameOf(2).palette);
}

}  // namespace
}  // namespace kirto::test
