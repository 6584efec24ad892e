#include "formats/export/video_timing.h"

#include <gtest/gtest.h>

namespace kirto::test {

namespace {

VideoTiming TimingOfAll(const std::vector<int32>& milliseconds) {
    return TimingOf(milliseconds);
}

}  // namespace

TEST(VideoTiming, EqualPausesAreAPictureEach) {
    const VideoTiming timing = TimingOfAll({40, 40, 40});
    EXPECT_EQ(timing.step, 40);
    EXPECT_EQ(timing.repeats, (std::vector<int32>{1, 1, 1}));
    EXPECT_EQ(timing.pictures, 3);
}

TEST(VideoTiming, DifferentPausesAreMultiplesOfWhatTheyHaveInCommon) {
    const VideoTiming timing = TimingOfAll({100, 250, 150});
    EXPECT_EQ(timing.step, 50);
    EXPECT_EQ(timing.repeats, (std::vector<int32>{2, 5, 3}));
}

TEST(VideoTiming, NoMoreThanAHundredPicturesASecond) {
    // Due at 33, 66 and 99 milliseconds.
    const VideoTiming timing = TimingOfAll({33, 33, 33, 101});
    EXPECT_EQ(timing.step, 10);
    EXPECT_EQ(timing.repeats, (std::vector<int32>{3, 4, 3, 10}));
    EXPECT_EQ(timing.pictures, 20);
}

TEST(VideoTiming, PausesThatBrowsersTakeForNoneLastATenthOfASecond) {
    const VideoTiming timing = TimingOfAll({0, 10, 19, 20});
    EXPECT_EQ(timing.step, 20);
    EXPECT_EQ(timing.repeats, (std::vector<int32>{5, 5, 5, 1}));
}

TEST(VideoTiming, LongPausesTakeFewPictures) {
    const VideoTiming timing = TimingOfAll({100000000, 50000000});
    EXPECT_EQ(timing.pictures, 3);
}

}  // namespace kirto::test
