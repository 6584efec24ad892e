#include "ui/thumbnails/difference_window.h"

#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

// Three frames, two of them other ones in the file. The last lies at the right of the screen.
std::shared_ptr<const SaveCheck::Finding> MakeFinding() {
    Animation saved;
    Animation read;
    for (Animation* animation : {&saved, &read}) {
        animation->width = 2;
        animation->height = 1;
    }
    for (int32 i = 0; i < 3; ++i) {
        Frame frame("frame", i == 2 ? 1 : 2, 1);
        frame.x_offset = i == 2 ? 1 : 0;
        frame.bitmap = FramePictureOf(frame.width, 1,
                                      std::vector<uint32>(static_cast<size_t>(frame.width), kRed));
        InsertFrame(saved, i, std::make_shared<const Frame>(frame));
        Frame shown("frame", 2, 1);
        shown.bitmap = FramePictureOf(2, 1, {kBlue, kRed});
        InsertFrame(read, i, std::make_shared<const Frame>(shown));
    }
    SaveDifferences differences;
    differences.frames = 3;
    differences.pairs = {{1, 1}, {2, 2}};
    return std::make_shared<const SaveCheck::Finding>(
        SaveCheck::Finding{"saved.gif", std::make_shared<const Animation>(saved),
                           std::make_shared<const Animation>(read), differences});
}

class DifferenceWindowTest : public testing::Test {
  protected:
    DifferenceWindowTest() : window_(new DifferenceWindow(MakeFinding(), false, nullptr)) {
        window_->show();
    }
    ~DifferenceWindowTest() override { delete window_; }

    // The color in the middle of the picture's left or right half, which is scaled smoothly.
    static std::string ColorOf(FramePreview& preview, bool right) {
        const BRect area = preview.PictureArea();
        const float x = area.left + area.Width() * (right ? 0.75F : 0.25F);
        const QColor color = preview.grab().toImage().pixelColor(
            static_cast<int>(x), static_cast<int>(area.top + area.Height() / 2));
        if (color.red() > 240 && color.blue() < 15) return "red";
        return color.blue() > 240 && color.red() < 15 ? "blue" : "none";
    }

    QPointer<DifferenceWindow> window_;
};

}  // namespace

TEST_F(DifferenceWindowTest, BeginsWithTheFirstFrameThatDiffers) {
    EXPECT_EQ(window_->position->text(), "Frame 2 of 3");
    EXPECT_EQ(window_->slider->maximum(), 1);
    EXPECT_EQ(ColorOf(*window_->saved, false), "red");
    EXPECT_EQ(ColorOf(*window_->read, false), "blue");
    EXPECT_EQ(ColorOf(*window_->read, true), "red");
}

TEST_F(DifferenceWindowTest, TheKeyboardGoesFromFrameToFrame) {
    QTest::keyClick(window_->slider, Qt::Key_Right);

    EXPECT_EQ(window_->position->text(), "Frame 3 of 3");
    QTest::keyClick(window_->slider, Qt::Key_Right);
    EXPECT_EQ(window_->position->text(), "Frame 3 of 3");
}

TEST_F(DifferenceWindowTest, AFrameStandsWhereItIsOnTheScreen) {
    window_->ShowPair(1);

    EXPECT_EQ(ColorOf(*window_->saved, false), "none");
    EXPECT_EQ(ColorOf(*window_->saved, true), "red");
}

TEST_F(DifferenceWindowTest, ThereIsNoFrameBeyondTheLast) {
    window_->ShowPair(2);
    window_->ShowPair(-1);

    EXPECT_EQ(window_->position->text(), "Frame 2 of 3");
}

TEST_F(DifferenceWindowTest, ShowsBothInOnePlaceInTurns) {
    window_->turns->click();
    EXPECT_TRUE(window_->saved->isVisible());
    EXPECT_FALSE(window_->read->isVisible());

    window_->TakeTurn();
    EXPECT_FALSE(window_->saved->isVisible());
    EXPECT_TRUE(window_->read->isVisible());
    EXPECT_TRUE(window_->read_label->isVisible());

    window_->turns->click();
    EXPECT_TRUE(window_->saved->isVisible());
    EXPECT_TRUE(window_->read->isVisible());
}

TEST_F(DifferenceWindowTest, EveryControlHasAName) {
    EXPECT_EQ(window_->slider->accessibleName(), "Frame that differs");
    EXPECT_EQ(window_->turns->accessibleName(), "In turns");
    EXPECT_EQ(window_->saved->accessibleName(), "The frame in Kirto");
    EXPECT_EQ(window_->read->accessibleName(), "The frame in browsers");
}

TEST_F(DifferenceWindowTest, DeletesItselfWhenItIsClosed) {
    window_->findChild<QPushButton*>()->click();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    EXPECT_TRUE(window_.isNull());
}

}  // namespace kirto::test
