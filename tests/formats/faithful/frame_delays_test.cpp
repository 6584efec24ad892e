#include "formats/faithful/frame_delays.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>

namespace kirto::test {

namespace {

using testing::ElementsAre;

std::vector<uint16> Spread(const std::vector<double>& pauses, bool in_seconds = false) {
    Animation animation;
    for (const double pause : pauses) {
        auto frame = std::make_shared<Frame>("frame", 1, 1);
        frame->use_pause = true;
        frame->pause_length = pause;
        animation.frames.Insert(animation.frames.Size(), frame);
    }
    return SpreadDelays(animation, in_seconds);
}

}  // namespace

TEST(SpreadDelays, WholeHundredthsStayAsTheyAre) {
    EXPECT_THAT(Spread({0, 1, 2, 10, 65535}), ElementsAre(0, 1, 2, 10, 65535));
    EXPECT_THAT(Spread({0.29, 0.57, 1.15, 0}, true), ElementsAre(29, 57, 115, 0));
}

TEST(SpreadDelays, FifteenFramesASecondTakeASecond) {
    const std::vector<uint16> delays = Spread(std::vector<double>(15, 1.0 / 15), true);
    EXPECT_EQ(std::accumulate(delays.begin(), delays.end(), 0), 100);
    EXPECT_THAT(std::vector<uint16>(delays.begin(), delays.begin() + 3), ElementsAre(7, 6, 7));
}

TEST(SpreadDelays, NoFrameIsMoreThanHalfAHundredthOff) {
    std::vector<double> pauses;
    for (int32 i = 0; i < 1000; ++i)
        pauses.push_back(1 + 7 * std::abs(std::sin(i)));
    const std::vector<uint16> delays = Spread(pauses);
    double meant = 0;
    int32 written = 0;
    for (size_t i = 0; i < pauses.size(); ++i) {
        meant += pauses[i];
        written += delays[i];
        ASSERT_NEAR(meant, written, 0.5 + 1e-4) << i;
    }
}

TEST(SpreadDelays, ImpossiblePausesBecomeTheNearestThatIsPossible) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THAT(Spread({-5, nan, 1e300, 65536, 3}), ElementsAre(0, 0, 65535, 65535, 3));
}

TEST(SpreadDelays, FramesWithoutAPauseHaveTheAnimationsOrNone) {
    Animation animation;
    animation.frames.Insert(0, std::make_shared<Frame>("frame", 1, 1));
    animation.pause_length = 12;
    EXPECT_THAT(SpreadDelays(animation, false), ElementsAre(0));
    animation.use_pause = true;
    EXPECT_THAT(SpreadDelays(animation, false), ElementsAre(12));
}

}  // namespace kirto::test
