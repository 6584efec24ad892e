#include "ui/dialogs/fade_strip.h"

#include <QTest>
#include <chrono>
#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "support/colors.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {

namespace {

using std::chrono_literals::operator""ms;

constexpr uint32 kChosen = 0x40800000;  // red 0x40, green 0x80
constexpr QRgb kChosenPixel = 0xFF408000;
constexpr double kPause = 10;  // hundredths of a second

class FadeStripTest : public testing::Test {
  protected:
    FadeStripTest() {
        strip.SetNow([this] { return now; });
        strip.resize(300, 60);
    }

    void Show(const std::vector<FramePointer>& frames, int32 selected) {
        Animation animation;
        animation.frames = SequenceOf(frames);
        animation.selected = selected;
        animation.use_pause = true;
        animation.pause_length = kPause;
        strip.SetAnimation(std::make_shared<const Animation>(animation), false);
    }
    void Show(int32 selected) { Show({FrameOf(40, 30, kRed), FrameOf(40, 30, kBlue)}, selected); }
    // Paints it, which asks for the pictures of the choice, and waits for them.
    const std::vector<QImage>& Images() {
        strip.grab();
        EXPECT_TRUE(QTest::qWaitFor([this] { return strip.IsReady(); }));
        return strip.Images();
    }
    QRgb PixelOf(size_t image) { return Images().at(image).pixel(5, 5) | 0xFF000000; }

    FadeChoice choice{kFadeToColor, 3, kChosen};
    PlaybackClock::Instant now{0};
    FadeStrip strip{"Preview", [this] { return choice; }, nullptr};
};

TEST_F(FadeStripTest, ShowsTheFrameAndThoseOfTheFadeToItsEnd) {
    Show(0);
    ASSERT_EQ(Images().size(), 4U);
    EXPECT_EQ(PixelOf(0), QRgb{kRed});
    EXPECT_EQ(PixelOf(3), kChosenPixel);
    EXPECT_NE(PixelOf(1), PixelOf(2));
}

TEST_F(FadeStripTest, FollowsTheChoice) {
    Show(0);
    EXPECT_EQ(Images().size(), 4U);
    choice.command = kFadeFromColor;
    EXPECT_EQ(PixelOf(0), kChosenPixel);
    EXPECT_EQ(PixelOf(3), QRgb{kRed});
    choice.command = kFadeToNext;
    choice.count = 2;
    ASSERT_EQ(Images().size(), 4U);
    EXPECT_EQ(PixelOf(3), QRgb{kBlue});
}

TEST_F(FadeStripTest, MakesLargeFramesSmaller) {
    Show({FrameOf(1000, 301, kRed)}, 0);
    ASSERT_EQ(Images().size(), 4U);
    EXPECT_EQ(Images()[0].size(), QSize(125, 38));
}

TEST_F(FadeStripTest, ShowsTheColorAloneWhereThereIsNothingToFade) {
    EXPECT_TRUE(Images().empty());
    EXPECT_EQ(strip.grab().toImage().pixel(50, 25), kChosenPixel);
    Show(1);
    choice.command = kFadeToNext;
    EXPECT_TRUE(Images().empty());
    choice.command = kFadeToColor;
    choice.count = 101;
    EXPECT_TRUE(Images().empty());
    choice.count = 0;
    EXPECT_TRUE(Images().empty());
    EXPECT_FALSE(strip.IsPlaying());
}

// From the left: what plays, then the first and the last picture.
TEST_F(FadeStripTest, PaintsThePictureThatPlaysBesideTheStrip) {
    Show(0);
    choice.count = 1;
    ASSERT_EQ(Images().size(), 2U);
    QImage image = strip.grab().toImage();
    EXPECT_EQ(image.pixel(30, 30), QRgb{kRed});
    EXPECT_EQ(image.pixel(140, 30), QRgb{kRed});
    EXPECT_EQ(image.pixel(245, 30), kChosenPixel);
    now = 100ms;
    image = strip.grab().toImage();
    EXPECT_EQ(image.pixel(30, 30), kChosenPixel);
    EXPECT_EQ(image.pixel(140, 30), QRgb{kRed});
}

TEST_F(FadeStripTest, PlaysInALoopWithThePausesOfTheFade) {
    Show(0);
    ASSERT_EQ(Images().size(), 4U);
    EXPECT_EQ(strip.Place(), 0);
    now = 99ms;
    EXPECT_EQ(strip.Place(), 0);
    now = 100ms;
    EXPECT_EQ(strip.Place(), 1);
    now = 399ms;
    EXPECT_EQ(strip.Place(), 3);
    now = 400ms;
    EXPECT_EQ(strip.Place(), 0);
}

TEST_F(FadeStripTest, GoesOnWhereItIsInAnotherColorAndStartsAnewInAnotherFade) {
    Show(0);
    Images();
    now = 250ms;
    choice.color = 0;
    Images();
    EXPECT_EQ(strip.Place(), 2);
    choice.command = kFadeFromColor;
    Images();
    EXPECT_EQ(strip.Place(), 0);
}

TEST_F(FadeStripTest, WaitsForTheNextPictureOnlyWhileItIsPainted) {
    Show(0);
    Images();
    strip.show();
    strip.grab();
    EXPECT_TRUE(strip.IsPlaying());
    strip.hide();
    EXPECT_FALSE(strip.IsPlaying());
    strip.show();
    strip.grab();
    EXPECT_TRUE(strip.IsPlaying());
}

TEST_F(FadeStripTest, ForgetsWhatWasAskedForWhenItIsHidden) {
    strip.show();
    Show(0);
    strip.grab();
    strip.hide();
    HandleEvents();
    EXPECT_FALSE(strip.IsReady());
    EXPECT_EQ(Images().size(), 4U);
}

}  // namespace

}  // namespace kirto::test
