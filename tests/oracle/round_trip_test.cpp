// Made-up animations, written and read again.
#include <algorithm>
#include <gtest/gtest.h>

#include "app/open_animation.h"
#include "formats/gif/gif_save.h"
#include "support/meant_picture.h"

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

constexpr int32 kFirstClearingDisposal = 2;

// A document opened from a written one, under the same settings.
struct ReopenedAnimation {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    bool opened = false;

    ReopenedAnimation(const Bytes& bytes, const Prefs& prefs) {
        fixture.prefs = prefs;
        document.Reset();
        opened = OpenGif(BFile::OnMemory(bytes).get(), 0, document);
    }
    Bytes Save() {
        const std::shared_ptr<BFile> file = BFile::OnMemory();
        GifSave(file, document);
        return file->Memory();
    }
};

// What the loader's full-size frames should hold: the picture before, unless it is cleared or the
// image covers the canvas; then the image's own pixels.
std::vector<Pixels> FullSizePictures(const AnimationDocument& saved,
                                     const AnimationDocument& loaded) {
    const bool clears = saved.prefs.animation_gifdisposal >= kFirstClearingDisposal;
    const Pixels empty(static_cast<size_t>(saved.Current()->width * saved.Current()->height),
                       kTransparentPixel);
    std::vector<Pixels> pictures;
    for (const FramePointer& frame : saved.Current()->frames) {
        const Frame& loaded_frame = *loaded.FrameAt(static_cast<int32>(pictures.size()));
        const Palette& palette =
            loaded_frame.local_palette ? *loaded_frame.palette : *loaded.Current()->palette;
        const rgb_color background =
            palette.ColorForIndex(saved.Current()->palette->background_index);
        Pixels picture = pictures.empty() ? empty : pictures.back();
        if (frame->width == saved.Current()->width && frame->height == saved.Current()->height) {
            picture = empty;
        } else if (clears) {
            std::fill(picture.begin(), picture.end(),
                      0xFF000000 | ColorKey(background.red, background.green, background.blue));
        }
        Draw(saved, *frame, &picture);
        pictures.push_back(picture);
    }
    return pictures;
}

std::vector<Pixels> OwnSizePictures(const AnimationDocument& saved) {
    std::vector<Pixels> pictures;
    for (const FramePointer& frame : saved.Current()->frames)
        pictures.push_back(MeantOwnSizePixels(saved, *frame));
    return pictures;
}

void ExpectSamePixels(const AnimationDocument& saved, const AnimationDocument& loaded) {
    const std::vector<Pixels> pictures = saved.prefs.animation_gifloadfullframe
                                             ? FullSizePictures(saved, loaded)
                                             : OwnSizePictures(saved);
    size_t number = 0;
    for (const FramePointer& frame : loaded.Current()->frames) {
        ASSERT_TRUE(PixelsOf(*frame->bitmap) == pictures[number]) << "frame " << number;
        ++number;
    }
}

void ExpectSameProperties(const AnimationDocument& saved, const AnimationDocument& loaded) {
    EXPECT_EQ(loaded.Current()->width, saved.Current()->width);
    EXPECT_EQ(loaded.Current()->height, saved.Current()->height);
    EXPECT_EQ(loaded.Current()->use_loop, saved.Current()->use_loop);
    if (saved.Current()->use_loop) {
        EXPECT_EQ(loaded.Current()->loop_count, saved.Current()->loop_count);
    }
    const Palette& palette = *loaded.Current()->palette;
    EXPECT_EQ(palette.bits, saved.Current()->palette->bits);
    EXPECT_EQ(palette.background_index, saved.Current()->palette->background_index);
    EXPECT_EQ(palette.use_transparent, saved.Current()->palette->use_transparent);
    if (saved.Current()->palette->use_transparent) {
        EXPECT_EQ(palette.transparent_index, saved.Current()->palette->transparent_index);
    }
}

void ExpectSameFrames(const AnimationDocument& saved, const AnimationDocument& loaded) {
    ASSERT_EQ(loaded.FrameCount(), saved.FrameCount());
    const bool own_size = !saved.prefs.animation_gifloadfullframe;
    for (int32 i = 0; i < saved.FrameCount(); ++i) {
        const FramePointer frame = saved.FrameAt(i);
        const Frame& other = *loaded.FrameAt(i);
        EXPECT_EQ(DelayOf(loaded, other), DelayOf(saved, *frame)) << "frame " << i;
        EXPECT_EQ(other.width, own_size ? frame->width : saved.Current()->width);
        EXPECT_EQ(other.height, own_size ? frame->height : saved.Current()->height);
        EXPECT_EQ(other.x_offset, own_size ? frame->x_offset : 0);
        EXPECT_EQ(other.y_offset, own_size ? frame->y_offset : 0);
    }
}

void ExpectRoundTrips(const DocumentStyle& style, uint32 first_seed, uint32 count) {
    const DebugRecorder silence;
    const AlertRecorder alerts;
    for (uint32 seed = first_seed; seed < first_seed + count; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        MadeUpAnimation made(style, seed);
        ReopenedAnimation first(made.Save(), made.prefs);
        ASSERT_TRUE(first.opened);
        ExpectSameProperties(made.document, first.document);
        ExpectSameFrames(made.document, first.document);
        if (made.PixelsAreKnown(style)) ExpectSamePixels(made.document, first.document);

        const Bytes resaved = first.Save();
        ReopenedAnimation second(resaved, made.prefs);
        ASSERT_TRUE(second.opened);
        EXPECT_TRUE(second.Save() == resaved) << "a second round changes the file";
        if (testing::Test::HasFailure()) return;
    }
    EXPECT_TRUE(alerts.Lines().empty());
}

// A thousand in three parts, which can run side by side.
TEST(RoundTrip, AnimationsKeepPixelsAndTiming) {
    DocumentStyle style;
    style.max_side = 24;
    ExpectRoundTrips(style, 1, 500);
}

TEST(RoundTrip, TinyAnimationsKeepPixelsAndTiming) {
    DocumentStyle style;
    style.max_side = 6;
    ExpectRoundTrips(style, 501, 480);
}

TEST(RoundTrip, LongAndLargeAnimationsKeepPixelsAndTiming) {
    DocumentStyle style;
    style.max_side = 6;
    style.max_frames = 16;
    ExpectRoundTrips(style, 981, 10);
    style.max_side = 200;
    style.max_frames = 2;
    ExpectRoundTrips(style, 991, 10);
}

TEST(RoundTrip, ColoursOutsideThePaletteComeBackAsItsNearest) {
    DocumentStyle style;
    style.max_side = 24;
    style.fitting_colors = false;
    ExpectRoundTrips(style, 2001, 150);
}

}  // namespace

}  // namespace kirto::test
