#include "animation/pauses.h"

#include <gtest/gtest.h>
#include <string>

namespace kirto::test {

namespace {

enum class Frames { kSelected, kAll };

constexpr double kHundredths = PauseUnitsPerSecond(false);

// Three frames that wait 4, the second one 10 by itself; the first two are selected.
Animation Sample() {
    Animation animation;
    for (int32 i = 0; i < 3; ++i)
        InsertFrame(animation, i, std::make_shared<const Frame>(Frame(std::to_string(i), 1, 1)));
    animation.use_pause = true;
    animation.pause_length = 4;
    EditFrame(animation, 1, [](Frame& frame) {
        frame.use_pause = true;
        frame.pause_length = 10;
    });
    SelectFrames(animation, FrameSet::Of(0, 1), 0);
    return animation;
}

std::vector<double> After(const char* text, Frames frames, bool own_pauses,
                          double units = kHundredths) {
    Animation animation = Sample();
    PauseChange change = ParsePauseChange(text).value();
    change.own_pauses = own_pauses;
    if (frames == Frames::kSelected) ChangePauses(animation, animation.Selection(), change, units);
    if (frames == Frames::kAll) ChangePauseOfAll(animation, change, units);
    std::vector<double> pauses;
    for (const FramePointer& frame : animation.frames)
        pauses.push_back(animation.PauseOf(*frame));
    return pauses;
}

using Pauses = std::vector<double>;

}  // namespace

TEST(ChangePauses, GivesSelectedFramesPausesOfTheirOwn) {
    EXPECT_EQ(After("7", Frames::kSelected, true), (Pauses{7, 7, 4}));
    EXPECT_EQ(After("40ms", Frames::kSelected, true), (Pauses{4, 4, 4}));
    EXPECT_EQ(After("20fps", Frames::kSelected, true), (Pauses{5, 5, 4}));
    EXPECT_EQ(After("50%", Frames::kSelected, true), (Pauses{2, 5, 4}));
}

TEST(ChangePauses, LeavesPausesOfFramesThatHaveTheirOwnWhereAsked) {
    EXPECT_EQ(After("7", Frames::kSelected, false), (Pauses{7, 10, 4}));
    EXPECT_EQ(After("7", Frames::kAll, false), (Pauses{7, 10, 7}));
    EXPECT_EQ(After("200%", Frames::kAll, false), (Pauses{8, 10, 8}));
}

TEST(ChangePauses, OfAllFramesSetsTheAnimations) {
    EXPECT_EQ(After("7", Frames::kAll, true), (Pauses{7, 7, 7}));
    EXPECT_EQ(After("200%", Frames::kAll, true), (Pauses{8, 20, 8}));

    Animation animation = Sample();
    animation.use_pause = false;
    const PauseChange change = ParsePauseChange("7").value();
    EXPECT_TRUE(ChangePauseOfAll(animation, change, kHundredths));
    EXPECT_TRUE(animation.use_pause);
    EXPECT_EQ(animation.pause_length, 7);
    EXPECT_FALSE(animation.frames.At(1)->use_pause);
    EXPECT_FALSE(ChangePauseOfAll(animation, change, kHundredths));
}

TEST(ChangePauses, CountsInSecondsWherePausesDo) {
    EXPECT_EQ(After("500ms", Frames::kSelected, true, 1), (Pauses{0.5, 0.5, 4}));
    EXPECT_EQ(After("4fps", Frames::kSelected, true, 1), (Pauses{0.25, 0.25, 4}));
}

TEST(ChangePauses, HasNothingToDoWithoutFrames) {
    Animation animation = Sample();

    EXPECT_FALSE(ChangePauses(animation, {}, {}, kHundredths));
}

TEST(ParsePauseChange, TakesNoNumberThatIsNoPause) {
    for (const char* text : {"", "ms", "-1", "-5ms", "0fps", "0%", "inf", "nan", "1e999", "4 ms",
                             "4s", "fps15", "15fpsms"}) {
        EXPECT_FALSE(ParsePauseChange(text)) << text;
    }
    EXPECT_EQ(ParsePauseChange("0")->value, 0);
    EXPECT_EQ(ParsePauseChange("12.5%")->value, 12.5);
}

TEST(PauseOfAll, AddsThePausesOfTheFrames) {
    const Animation animation = Sample();

    EXPECT_EQ(PauseOfAll(animation, FrameSet::AllOf(3)), 18);
    EXPECT_EQ(PauseOfAll(animation, FrameSet::Of(1, 1)), 10);
    EXPECT_EQ(PauseOfAll(animation, {}), 0);
}

}  // namespace kirto::test
