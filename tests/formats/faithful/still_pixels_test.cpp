#include "formats/faithful/still_pixels.h"

#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr int32 kWidth = 30;

// Frames of one row of greys; a grey of -1 is transparent.
Animation GreyFrames(const std::vector<std::vector<int32>>& frames) {
    Animation animation;
    animation.width = kWidth;
    animation.height = 1;
    for (const std::vector<int32>& greys : frames) {
        std::vector<uint32> pixels;
        for (const int32 grey : greys)
            pixels.push_back(grey < 0 ? 0 : 0xFF000000 | static_cast<uint32>(grey) * 0x10101);
        Frame frame("frame", kWidth, 1);
        frame.bitmap = FramePictureOf(kWidth, 1, pixels, B_RGBA32);
        animation.frames.Insert(animation.frames.Size(),
                                std::make_shared<const Frame>(std::move(frame)));
    }
    return animation;
}

// The greys of a frame where pixels stay that are no more than 2 greys off.
std::vector<int32> StillFrame(const std::vector<std::vector<int32>>& frames, int32 position) {
    const Work work;
    const auto still = WithStillPixels(GreyFrames(frames), AlphaMatte(), 12, nullptr, work);
    EXPECT_TRUE(still);
    std::vector<int32> greys;
    for (const uint32 pixel : PixelsOf(*still->frames.At(position)->bitmap))
        greys.push_back(pixel >> 24 == 0 ? -1 : static_cast<int32>(pixel & 255));
    return greys;
}

std::vector<int32> All(int32 grey) {
    return std::vector<int32>(kWidth, grey);
}

}  // namespace

TEST(StillPixels, WhatIsNearStays) {
    EXPECT_EQ(StillFrame({All(50), All(52)}, 1), All(50));
    EXPECT_EQ(StillFrame({All(50), All(53)}, 1), All(53));
}

TEST(StillPixels, NothingDriftsAwayStepByStep) {
    const std::vector<std::vector<int32>> slow = {All(50), All(52), All(54), All(56)};
    EXPECT_EQ(StillFrame(slow, 1), All(50));
    EXPECT_EQ(StillFrame(slow, 2), All(54));
    EXPECT_EQ(StillFrame(slow, 3), All(54));
}

TEST(StillPixels, FewPixelsInARowDoNotStay) {
    std::vector<int32> torn = All(51);
    torn[11] = 90;
    std::vector<int32> meant = torn;
    // Of the 11 in front none stays, but the 18 behind.
    std::fill(meant.begin() + 12, meant.end(), 50);
    EXPECT_EQ(StillFrame({All(50), torn}, 1), meant);
}

TEST(StillPixels, TransparentPixelsAreNearNoColor) {
    EXPECT_EQ(StillFrame({All(-1), All(0)}, 1), All(0));
    EXPECT_EQ(StillFrame({All(0), All(-1)}, 1), All(-1));
}

TEST(StillPixels, NothingIsMadeWhereTheWorkIsStopped) {
    Work work;
    work.StopAll();
    EXPECT_FALSE(WithStillPixels(GreyFrames({All(1)}), AlphaMatte(), 12, nullptr, work));
}

}  // namespace kirto::test
