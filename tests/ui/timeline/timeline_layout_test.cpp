#include "ui/timeline/timeline_layout.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

constexpr double kHundredths = 100;

// Pauses in hundredths of a second.
TimelineLayout LayoutOf(const std::vector<double>& pauses, double scale,
                        const TimelineLayout::Pause& instead = {}) {
    Animation animation;
    for (const double pause : pauses) {
        Frame frame("frame", 1, 1);
        frame.use_pause = true;
        frame.pause_length = pause;
        InsertFrame(animation, animation.frames.Size(), std::make_shared<const Frame>(frame));
    }
    TimelineLayout layout;
    layout.Update(animation, kHundredths, scale, instead);
    return layout;
}

}  // namespace

TEST(TimelineLayout, MakesBlocksAsWideAsTheirFramesAreShownLong) {
    const TimelineLayout layout = LayoutOf({10, 50, 20}, 1000);

    EXPECT_EQ(layout.Count(), 3);
    EXPECT_EQ(layout.LeftOf(0), 0);
    EXPECT_EQ(layout.RightOf(0), 100);
    EXPECT_EQ(layout.LeftOf(2), 600);
    EXPECT_EQ(layout.Width(), 800);
    EXPECT_DOUBLE_EQ(layout.StartOf(2), 0.6);
    EXPECT_DOUBLE_EQ(layout.SecondsOf(1), 0.5);
}

TEST(TimelineLayout, MakesNoBlockTooNarrowToBeHitOrEndless) {
    const TimelineLayout layout = LayoutOf({0, -3, 1e300, 10}, 10);

    EXPECT_EQ(layout.RightOf(0), TimelineLayout::kNarrowest);
    EXPECT_EQ(layout.RightOf(1), 2 * TimelineLayout::kNarrowest);
    EXPECT_EQ(layout.RightOf(2), 2 * TimelineLayout::kNarrowest + TimelineLayout::kWidest);
    EXPECT_EQ(layout.SecondsOf(1), 0);
}

TEST(TimelineLayout, ShowsAnotherPauseInPlaceOfAFramesOwn) {
    const TimelineLayout layout = LayoutOf({10, 10}, 1000, {.frame = 0, .seconds = 0.3});

    EXPECT_EQ(layout.RightOf(0), 300);
    EXPECT_EQ(layout.Width(), 400);
}

TEST(TimelineLayout, FindsBlocksEdgesAndPlacesToDropAt) {
    const TimelineLayout layout = LayoutOf({10, 10, 10}, 1000);

    EXPECT_EQ(layout.BlockAt(99), 0);
    EXPECT_EQ(layout.BlockAt(100), 1);
    EXPECT_EQ(layout.BlockAt(-5), 0);
    EXPECT_EQ(layout.BlockAt(9999), 2);
    EXPECT_EQ(layout.EdgeAt(97, 4), 0);
    EXPECT_EQ(layout.EdgeAt(103, 4), 0);
    EXPECT_EQ(layout.EdgeAt(105, 4), -1);
    EXPECT_EQ(layout.EdgeAt(2, 4), -1) << "nothing ends at the left edge";
    EXPECT_EQ(layout.EdgeAt(303, 4), 2);
    EXPECT_EQ(layout.DropPosition(49), 0);
    EXPECT_EQ(layout.DropPosition(51), 1);
    EXPECT_EQ(layout.DropPosition(9999), 3);
}

TEST(TimelineLayout, KnowsWhatIsInSight) {
    const TimelineLayout layout = LayoutOf({10, 10, 10, 10}, 1000);

    EXPECT_EQ(layout.Between(150, 250), (std::pair<int32, int32>(1, 3)));
    EXPECT_EQ(layout.Between(-50, 9999), (std::pair<int32, int32>(0, 4)));
    EXPECT_EQ(layout.Between(5000, 9999), (std::pair<int32, int32>(4, 4)));
}

TEST(TimelineLayout, OfNothingHasNothing) {
    const TimelineLayout layout = LayoutOf({}, 1000);

    EXPECT_EQ(layout.Width(), 0);
    EXPECT_EQ(layout.BlockAt(5), -1);
    EXPECT_EQ(layout.EdgeAt(5, 4), -1);
    EXPECT_EQ(layout.DropPosition(5), 0);
    EXPECT_EQ(layout.Between(0, 100), (std::pair<int32, int32>(0, 0)));
}

}  // namespace kirto::test
