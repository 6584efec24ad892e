// giflib's reading of the files that we write.
#include <gtest/gtest.h>

#include "oracle/giflib_reader.h"

#ifdef KIRTO_HAVE_GIFLIB

#include <algorithm>
#include <string>

#include "formats/faithful/faithful_gif_save.h"
#include "support/shown_animation.h"

namespace kirto::test {

namespace {

void ExpectImageAsMeant(const Slurped& slurped, const AnimationDocument& document, int32 index,
                        bool pixels_are_known) {
    const Frame& frame = *document.FrameAt(index);
    const SavedImage& image = slurped.Image(index);
    EXPECT_EQ(image.ImageDesc.Left, frame.x_offset);
    EXPECT_EQ(image.ImageDesc.Top, frame.y_offset);
    ASSERT_EQ(image.ImageDesc.Width, frame.width);
    ASSERT_EQ(image.ImageDesc.Height, frame.height);
    EXPECT_EQ(image.ImageDesc.Interlace, document.prefs.animation_gifinterlaced);
    const GraphicsControlBlock control = slurped.Control(index);
    const Palette& palette = *document.Current()->palette;
    EXPECT_EQ(control.DelayTime, DelayOf(document, frame));
    EXPECT_EQ(control.DisposalMode, std::min(document.prefs.animation_gifdisposal, 3));
    EXPECT_EQ(control.TransparentColor,
              palette.use_transparent ? palette.transparent_index : NO_TRANSPARENT_COLOR);
    if (!pixels_are_known) return;
    ASSERT_TRUE(slurped.ImagePixels(index) == MeantPixels(document, frame));
}

// The content of the extension blocks before the first image, label before content.
std::vector<std::string> ExtensionsOf(const Slurped& slurped) {
    std::vector<std::string> extensions;
    const SavedImage& first = slurped.Image(0);
    for (int i = 0; i < first.ExtensionBlockCount; ++i) {
        const ExtensionBlock& block = first.ExtensionBlocks[i];
        extensions.push_back(static_cast<char>(block.Function) +
                             std::string(block.Bytes, block.Bytes + block.ByteCount));
    }
    return extensions;
}

void ExpectLoopAndComment(const Slurped& slurped, const AnimationDocument& document) {
    std::vector<std::string> expected;
    if (document.Current()->use_loop) {
        const auto low = static_cast<char>(document.Current()->loop_count);
        const auto high = static_cast<char>(document.Current()->loop_count >> 8);
        expected.push_back(static_cast<char>(APPLICATION_EXT_FUNC_CODE) +
                           std::string("NETSCAPE2.0"));
        expected.push_back(static_cast<char>(CONTINUE_EXT_FUNC_CODE) + std::string{1, low, high});
    }
    if (document.prefs.animation_gifcomment) {
        expected.push_back(static_cast<char>(COMMENT_EXT_FUNC_CODE) +
                           std::string("Created by Kirto v1.4 by Morvik on BeOS"));
    }
    std::vector<std::string> extensions = ExtensionsOf(slurped);
    ASSERT_FALSE(extensions.empty());
    extensions.pop_back();  // the graphic control block
    EXPECT_EQ(extensions, expected);
}

void ExpectReadAsMeant(const DocumentStyle& style, uint32 first_seed, uint32 count) {
    for (uint32 seed = first_seed; seed < first_seed + count; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        MadeUpAnimation made(style, seed);
        const AnimationDocument& document = made.document;
        const std::vector<uint8> bytes = made.Save();
        const Slurped slurped(bytes);
        ASSERT_TRUE(slurped.Complete());
        ASSERT_EQ(slurped.Gif().ImageCount, document.FrameCount());
        EXPECT_EQ(slurped.Gif().SWidth, document.Current()->width);
        EXPECT_EQ(slurped.Gif().SHeight, document.Current()->height);
        EXPECT_EQ(slurped.Gif().SBackGroundColor, document.Current()->palette->background_index);
        ExpectLoopAndComment(slurped, document);
        for (int32 i = 0; i < document.FrameCount(); ++i)
            ExpectImageAsMeant(slurped, document, i, made.PixelsAreKnown(style));
        if (testing::Test::HasFailure()) return;
    }
}

// The screens that a player shows of what giflib has read, with the pauses.
std::vector<ShownFrame> Played(const Slurped& slurped) {
    const int32 width = slurped.Gif().SWidth;
    ShownPixels screen(static_cast<size_t>(width * slurped.Gif().SHeight), 0);
    std::vector<ShownFrame> frames;
    for (int32 i = 0; i < slurped.Gif().ImageCount; ++i) {
        const GifImageDesc& place = slurped.Image(i).ImageDesc;
        const Pixels pixels = slurped.ImagePixels(i);
        const ShownPixels before = screen;
        const auto each = [&](const auto& action) {
            for (int32 at = 0; at < place.Width * place.Height; ++at) {
                const int32 x = place.Left + at % place.Width;
                const int32 y = place.Top + at / place.Width;
                action(screen[static_cast<size_t>(y * width + x)], pixels[static_cast<size_t>(at)]);
            }
        };
        each([](uint32& shown, uint32 pixel) {
            if (pixel != kTransparentPixel) shown = pixel;
        });
        const GraphicsControlBlock control = slurped.Control(i);
        frames.push_back({screen, control.DelayTime});
        if (control.DisposalMode == DISPOSE_BACKGROUND)
            each([](uint32& shown, uint32) { shown = 0; });
        if (control.DisposalMode == DISPOSE_PREVIOUS) screen = before;
    }
    return frames;
}

TEST(Giflib, ReadsWhatIsSavedFaithfully) {
    for (uint32 seed = 1; seed <= 300; ++seed) {
        SeededChoices choices(seed);
        DocumentFixture fixture;
        fixture.prefs.animation_gifinterlaced = choices.OneIn(3);
        FillWithScenes(choices, 40, fixture.document);
        const std::shared_ptr<BFile> file = BFile::OnMemory();
        const FaithfulGifSave save(file, fixture.document);
        const Slurped slurped(file->Memory());
        ASSERT_TRUE(slurped.Complete()) << "seed " << seed;
        EXPECT_GE(slurped.Gif().ImageCount, 1);
        EXPECT_LE(slurped.Gif().ImageCount, fixture.document.FrameCount());
        EXPECT_EQ(slurped.Gif().SWidth, fixture.document.Current()->width);
        EXPECT_EQ(slurped.Gif().SHeight, fixture.document.Current()->height);
        const std::vector<ShownFrame> meant = ShownFrames(*fixture.document.Current());
        // Frames that can't be as they were may become alike.
        const bool exact = std::all_of(meant.begin(), meant.end(),
                                       [](const ShownFrame& frame) { return frame.promised; });
        if (exact) {
            ASSERT_TRUE(Played(slurped) == meant) << "seed " << seed;
        }
    }
}

TEST(Giflib, ReadsAThousandAnimationsAsTheyWereMeant) {
    DocumentStyle style;
    style.max_side = 24;
    ExpectReadAsMeant(style, 1, 500);
    style.max_side = 6;
    ExpectReadAsMeant(style, 501, 480);
    style.max_frames = 16;
    ExpectReadAsMeant(style, 981, 10);
    style.max_side = 200;
    style.max_frames = 2;
    ExpectReadAsMeant(style, 991, 10);
}

TEST(Giflib, ReadsAnyColoursAsTheNearestOfThePalette) {
    DocumentStyle style;
    style.max_side = 24;
    style.fitting_colors = false;
    ExpectReadAsMeant(style, 2001, 150);
}

}  // namespace

}  // namespace kirto::test

#else

TEST(Giflib, ReadsAThousandAnimationsAsTheyWereMeant) {
    GTEST_SKIP() << "giflib was not there when this was built";
}

#endif
