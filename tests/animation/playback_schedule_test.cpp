#include "animation/playback_schedule.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace kirto::test {

namespace {

using std::chrono::milliseconds;
using Duration = PlaybackSchedule::Duration;
using Times = std::vector<int64>;

Animation FramesOfPauses(const std::vector<double>& pauses) {
    Animation animation;
    for (const double pause : pauses) {
        Frame frame("frame", 1, 1);
        frame.use_pause = true;
        frame.pause_length = pause;
        InsertFrame(animation, animation.frames.Size(), std::make_shared<const Frame>(frame));
    }
    return animation;
}

PlaybackSchedule OfAll(const Animation& animation, const PlaybackSchedule::Options& options = {}) {
    return {animation, FrameSet::AllOf(animation.frames.Size()), options};
}

// Milliseconds.
Times PausesOf(const PlaybackSchedule& schedule) {
    Times pauses;
    for (int32 i = 0; i < schedule.Count(); ++i)
        pauses.push_back(schedule.PauseAt(i).count() / 1000000);
    return pauses;
}

}  // namespace

TEST(PlaybackSchedule, HasFramesForAsLongAsTheirPausesSay) {
    const PlaybackSchedule schedule = OfAll(FramesOfPauses({4, 10, 2.5}));

    EXPECT_EQ(PausesOf(schedule), (Times{40, 100, 25}));
    EXPECT_EQ(schedule.Length(), milliseconds(165));
    EXPECT_EQ(schedule.StartOf(2), milliseconds(140));
}

TEST(PlaybackSchedule, CountsInSecondsWherePausesDo) {
    EXPECT_EQ(PausesOf(OfAll(FramesOfPauses({0.04, 2}), {.pauses_in_seconds = true})),
              (Times{40, 2000}));
}

TEST(PlaybackSchedule, TakesTheAnimationsPauseForFramesWithoutTheirOwn) {
    Animation animation = FramesOfPauses({4, 4});
    EditFrame(animation, 1, [](Frame& frame) { frame.use_pause = false; });
    animation.use_pause = true;
    animation.pause_length = 7;

    EXPECT_EQ(PausesOf(OfAll(animation)), (Times{40, 70}));
}

TEST(PlaybackSchedule, ShowsEachFrameForAHundredthAtLeastAndAnHourAtMost) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();

    EXPECT_EQ(PausesOf(OfAll(FramesOfPauses({0, -5, 0.3, none, 1e300, endless}))),
              (Times{10, 10, 10, 10, 3600000, 3600000}));
}

TEST(PlaybackSchedule, PlaysLikeABrowserBelowTwoHundredths) {
    EXPECT_EQ(
        PausesOf(OfAll(FramesOfPauses({0, 1, 1.99, 2, 3.9, 28.9999999}), {.like_a_browser = true})),
        (Times{100, 100, 100, 20, 30, 290}));
    EXPECT_EQ(PausesOf(OfAll(FramesOfPauses({0.01, 0.29}),
                             {.pauses_in_seconds = true, .like_a_browser = true})),
              (Times{100, 290}));
}

TEST(PlaybackSchedule, FindsThePlaceThatIsShownAtATime) {
    const PlaybackSchedule schedule = OfAll(FramesOfPauses({4, 10, 2}));

    EXPECT_EQ(schedule.PlaceAt(milliseconds(0)), 0);
    EXPECT_EQ(schedule.PlaceAt(milliseconds(40) - Duration(1)), 0);
    EXPECT_EQ(schedule.PlaceAt(milliseconds(40)), 1);
    EXPECT_EQ(schedule.PlaceAt(milliseconds(140)), 2);
    EXPECT_EQ(schedule.PlaceAt(milliseconds(9999)), 2);
    EXPECT_EQ(schedule.PlaceAt(milliseconds(-1)), 0);
}

TEST(PlaybackSchedule, OfSomeFramesKnowsWhereTheyStand) {
    const Animation animation = FramesOfPauses({4, 4, 4, 4, 4});
    FrameSet frames = FrameSet::Of(1, 1);
    frames.Add({3, 3});
    const PlaybackSchedule schedule(animation, frames, {});

    EXPECT_EQ(schedule.Count(), 2);
    EXPECT_EQ(schedule.FrameAt(1), 3);
    EXPECT_EQ(schedule.PlaceOf(3), 1);
    EXPECT_EQ(schedule.PlaceOf(2), 1) << "the next one that is played";
    EXPECT_EQ(schedule.PlaceOf(4), 0) << "from the start again";
    EXPECT_EQ(schedule.Find(animation.frames.At(3)->id), 1);
    EXPECT_EQ(schedule.Find(animation.frames.At(2)->id), -1);
}

TEST(PlaybackSchedule, OfNothingIsEmpty) {
    const PlaybackSchedule schedule = OfAll({});

    EXPECT_TRUE(schedule.Empty());
    EXPECT_EQ(schedule.Length(), Duration(0));
    EXPECT_EQ(schedule.PlaceOf(0), -1);
}

}  // namespace kirto::test
