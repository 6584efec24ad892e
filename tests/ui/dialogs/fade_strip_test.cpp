#include "ui/dialogs/fade_strip.h"

#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/colors.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {

namespace {

constexpr uint32 kChosen = 0x40800000;  // red 0x40, green 0x80
constexpr QRgb kChosenPixel = 0xFF408000;

class FadeStripTest : public testing::Test {
  protected:
    void Show(int32 selected) {
        Animation animation;
        animation.frames = SequenceOf({FrameOf(40, 30, kRed), FrameOf(40, 30, kBlue)});
        animation.selected = selected;
        strip.SetAnimation(std::make_shared<const Animation>(animation));
    }
    QRgb PixelOf(size_t image) { return strip.Images().at(image).pixel(5, 5) | 0xFF000000; }

    FadeStrip::Choice choice{kFadeToColor, 3, kChosen};
    FadeStrip strip{"Preview", [this] { return choice; }, nullptr};
};

TEST_F(FadeStripTest, ShowsTheFrameAndThoseOfTheFadeToItsEnd) {
    Show(0);
    ASSERT_EQ(strip.Images().size(), 4U);
    EXPECT_EQ(PixelOf(0), QRgb{kRed});
    EXPECT_EQ(PixelOf(3), kChosenPixel);
    EXPECT_NE(PixelOf(1), PixelOf(2));
}

TEST_F(FadeStripTest, FollowsTheChoice) {
    Show(0);
    EXPECT_EQ(strip.Images().size(), 4U);
    choice.command = kFadeFromColor;
    EXPECT_EQ(PixelOf(0), kChosenPixel);
    EXPECT_EQ(PixelOf(3), QRgb{kRed});
    choice.command = kFadeToNext;
    choice.count = 2;
    ASSERT_EQ(strip.Images().size(), 4U);
    EXPECT_EQ(PixelOf(3), QRgb{kBlue});
}

TEST_F(FadeStripTest, ShowsSomeOfManyPictures) {
    Show(0);
    choice.count = 100;
    ASSERT_EQ(strip.Images().size(), 6U);
    EXPECT_EQ(PixelOf(0), QRgb{kRed});
    EXPECT_EQ(PixelOf(5), kChosenPixel);
}

TEST_F(FadeStripTest, MakesLargeFramesSmaller) {
    Animation animation;
    animation.frames = SequenceOf({FrameOf(1000, 301, kRed)});
    animation.selected = 0;
    strip.SetAnimation(std::make_shared<const Animation>(animation));
    ASSERT_EQ(strip.Images().size(), 4U);
    EXPECT_EQ(strip.Images()[0].size(), QSize(125, 38));
}

TEST_F(FadeStripTest, ShowsTheColorAloneWhereThereIsNothingToFade) {
    strip.resize(100, 50);
    EXPECT_TRUE(strip.Images().empty());
    EXPECT_EQ(strip.grab().toImage().pixel(50, 25), kChosenPixel);
    Show(1);
    choice.command = kFadeToNext;
    EXPECT_TRUE(strip.Images().empty());
    choice.command = kFadeToColor;
    choice.count = 101;
    EXPECT_TRUE(strip.Images().empty());
    choice.count = 0;
    EXPECT_TRUE(strip.Images().empty());
}

TEST_F(FadeStripTest, PaintsThePicturesSideBySide) {
    Show(0);
    choice.count = 1;
    strip.resize(200, 60);
    const QImage image = strip.grab().toImage();
    EXPECT_EQ(image.pixel(50, 30), QRgb{kRed});
    EXPECT_EQ(image.pixel(150, 30), kChosenPixel);
}

}  // namespace

}  // namespace kirto::test
