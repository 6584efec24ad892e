#include "app/palette_use.h"

#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr uint32 kClear = 0x00FFFFFF;

class PaletteUseTest : public testing::Test {
  protected:
    PaletteUseTest() {
        Palette palette;
        palette.mode = kPaletteFromFile;
        palette.size = 4;
        palette.bits = 2;
        palette.colors = {};
        palette.colors[1] = {255, 0, 0, 255};
        palette.colors[2] = {0, 255, 0, 255};
        palette.transparent_index = 3;
        palette.use_transparent = true;
        EditOf(fixture_.document)->palette = std::make_shared<const Palette>(palette);
        AppendFrame(fixture_.document, PictureOf(3, 1, {0xFFFF0000, 0xFFFE0000, kClear}), "first");
        AppendFrame(fixture_.document, PictureOf(2, 1, {0xFF00FF00, 0xFF000000}), "second");
    }
    const Animation& Shown() {
        shown_ = fixture_.document.Current();
        return *shown_;
    }

    DocumentFixture fixture_;
    std::shared_ptr<const Animation> shown_;
    std::atomic<bool> stop_ = false;
};

TEST_F(PaletteUseTest, CountsPixelsByTheNearestColorAndTransparentOnesByTheirIndex) {
    const auto use = PaletteUse::OfFrame(Shown(), 0, stop_);
    ASSERT_TRUE(use);
    EXPECT_EQ(use->pixels[0], 0);
    EXPECT_EQ(use->pixels[1], 2);
    EXPECT_EQ(use->pixels[2], 0);
    EXPECT_EQ(use->pixels[3], 1);
    EXPECT_EQ(*use->palette, *Shown().palette);
}

TEST_F(PaletteUseTest, AddsUpTheFramesOfTheAnimationsPalette) {
    auto use = PaletteUse::OfAll(Shown(), stop_);
    ASSERT_TRUE(use);
    EXPECT_EQ(use->pixels[0], 1);
    EXPECT_EQ(use->pixels[1], 2);
    EXPECT_EQ(use->pixels[2], 1);

    FrameEditOf(fixture_.document, 0)->local_palette = true;
    use = PaletteUse::OfAll(Shown(), stop_);
    EXPECT_EQ(use->pixels[1], 0);
    EXPECT_EQ(use->pixels[2], 1);
}

TEST_F(PaletteUseTest, OfAFrameHasTheFramesOwnPalette) {
    const auto own = std::make_shared<const Palette>(kPaletteGreyscale);
    FrameEditOf(fixture_.document, 1)->local_palette = true;
    FrameEditOf(fixture_.document, 1)->palette = own;

    const auto use = PaletteUse::OfFrame(Shown(), 1, stop_);

    EXPECT_EQ(*use->palette, *own);
    EXPECT_EQ(use->pixels[0], 1);
}

TEST_F(PaletteUseTest, FollowsTheFrameThatThePaletteFollows) {
    PaletteEditOf(fixture_.document)->mode = kPaletteFirstFrame;

    const auto use = PaletteUse::OfAll(Shown(), stop_);

    EXPECT_EQ(use->palette->mode, kPaletteFirstFrame);
    EXPECT_NE(*use->palette, *Shown().palette);
}

TEST_F(PaletteUseTest, IsNotKnownWhenItWasStopped) {
    stop_ = true;
    EXPECT_FALSE(PaletteUse::OfFrame(Shown(), 0, stop_));
    EXPECT_FALSE(PaletteUse::OfAll(Shown(), stop_));
}

}  // namespace

}  // namespace kirto::test
