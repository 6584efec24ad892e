#include "ui/controls/frame_selector.h"

#include <gtest/gtest.h>

#include "document/command_codes.h"
#include "ui/thumbnails/frame_area_fixture.h"

namespace kirto::test {

namespace {

using Mode = FrameSelector::Mode;

// Ten frames; the command is carried out as the application would.
struct Frames {
    Animation animation;
    FrameSelector selector;

    Frames() {
        for (int32 i = 0; i < 10; ++i)
            InsertFrame(animation, i, FrameOf(1, 1));
    }
    std::string Do(const BMessage& message) {
        std::string frames;
        int32 number = animation.selected;
        if (message.what == kSelectFrame && message.FindInt32("number", &number) == B_OK) {
            SelectFrame(animation, number);
        } else if (message.FindString("frames", &frames) == B_OK) {
            message.FindInt32("current", &number);
            SelectFrames(animation, ParseFrameSet(frames, 10).value(), number);
        }
        return TextOf(animation.Selection()) + " " + std::to_string(animation.selected);
    }
    std::string Choose(int32 frame, Mode mode) {
        return Do(selector.Choose(animation, frame, mode));
    }
};

}  // namespace

TEST(FrameSelector, SelectsAloneUpToAndByTurns) {
    EXPECT_EQ(FrameSelector::ModeOf(Qt::NoModifier), Mode::kAlone);
    EXPECT_EQ(FrameSelector::ModeOf(Qt::ShiftModifier), Mode::kUpTo);
    EXPECT_EQ(FrameSelector::ModeOf(Qt::ControlModifier), Mode::kToggle);
}

TEST(FrameSelector, ExtendsFromWhereTheLastSelectionBegan) {
    Frames frames;

    EXPECT_EQ(frames.Choose(4, Mode::kAlone), "4 4");
    EXPECT_EQ(frames.Choose(6, Mode::kUpTo), "4-6 6");
    EXPECT_EQ(frames.Choose(2, Mode::kUpTo), "2-4 2");
    EXPECT_EQ(frames.Choose(4, Mode::kUpTo), "4 4");
}

TEST(FrameSelector, ExtendsFromTheCurrentFrameBeforeAnythingWasClicked) {
    Frames frames;
    SelectFrame(frames.animation, 3);

    EXPECT_EQ(frames.Choose(5, Mode::kUpTo), "3-5 5");
}

TEST(FrameSelector, TakesFramesInAndOutButNeverTheLast) {
    Frames frames;

    EXPECT_EQ(frames.Choose(2, Mode::kToggle), "0,2 2");
    EXPECT_EQ(frames.Choose(5, Mode::kToggle), "0,2,5 5");
    EXPECT_EQ(frames.Choose(2, Mode::kToggle), "0,5 0");
    EXPECT_EQ(frames.Choose(5, Mode::kToggle), "0 0");
    EXPECT_EQ(frames.Choose(0, Mode::kToggle), "0 0");
}

TEST(FrameSelector, SelectsWhatAFrameIsDrawnAround) {
    Frames frames;

    EXPECT_EQ(frames.Do(FrameSelector::ChooseAround(frames.animation, FrameSet::Of(3, 5), false)),
              "3-5 3");
    EXPECT_EQ(frames.Do(FrameSelector::ChooseAround(frames.animation, FrameSet::Of(8, 9), true)),
              "3-5,8-9 3");
}

TEST(FrameSelector, MakesAnotherOfTheSelectedFramesCurrent) {
    Frames frames;
    SelectFrames(frames.animation, FrameSet::Of(2, 4), 2);

    EXPECT_EQ(frames.Do(FrameSelector::MakeCurrent(frames.animation, 4)), "2-4 4");
}

TEST(FrameSelector, LetsTheApplicationRefuseWhatThereIsNot) {
    Frames frames;

    EXPECT_EQ(frames.Choose(10, Mode::kUpTo), "0 0");
    EXPECT_EQ(frames.Choose(-1, Mode::kToggle), "0 0");
}

}  // namespace kirto::test
