#include "animation/frame_comparison.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

Frame FrameOf(int32 width, int32 height, const std::vector<uint32>& argb, int32 left = 0,
              int32 top = 0, color_space space = B_RGB32) {
    Frame frame("frame", width, height);
    frame.bitmap = FramePictureOf(width, height, argb, space);
    frame.x_offset = left;
    frame.y_offset = top;
    return frame;
}

PixelDifferences Compare(const Frame& frame, int32 width, int32 height,
                         const std::vector<uint32>& shown, bool parts = false) {
    FrameComparison comparison(width, height, parts, nullptr);
    return comparison.Compare(frame, *FramePictureOf(width, height, shown));
}

// Pixel by pixel, without regard to strips.
PixelDifferences PlainlyCompared(const Frame& frame, int32 width, int32 height,
                                 const Picture& shown) {
    PixelDifferences result;
    const std::vector<uint32> wanted = PixelsOf(*frame.bitmap);
    const std::vector<uint32> got = PixelsOf(shown);
    for (int32 y = 0; y < height; ++y) {
        for (int32 x = 0; x < width; ++x) {
            ++result.compared;
            const int32 in_x = x - frame.x_offset;
            const int32 in_y = y - frame.y_offset;
            const uint32 pixel = got[static_cast<size_t>(y * width + x)];
            const bool opaque = pixel >> 24 == 255;
            if (in_x < 0 || in_y < 0 || in_x >= frame.width || in_y >= frame.height) {
                result.outside += opaque;
                continue;
            }
            const uint32 want = wanted[static_cast<size_t>(in_y * frame.width + in_x)];
            if (want >> 24 == 0) {
                result.filled += opaque;
            } else if (!opaque) {
                ++result.holes;
            } else {
                result.recolored += want != pixel;
                for (uint32 shift = 0; shift < 24; shift += 8)
                    result.distance += std::abs(static_cast<int32>(want >> shift & 255) -
                                                static_cast<int32>(pixel >> shift & 255));
            }
        }
    }
    return result;
}

}  // namespace

TEST(FrameComparison, FindsNothingWhereAllIsTheSame) {
    const PixelDifferences same = Compare(FrameOf(2, 1, {kRed, kNone}), 2, 1, {kRed, kNone});

    EXPECT_EQ(same, (PixelDifferences{.compared = 2}));
    EXPECT_FALSE(same.Any());
}

TEST(FrameComparison, TellsTheKindsOfDifferencesApart) {
    const Frame frame = FrameOf(4, 1, {kRed, kNone, kRed, kRed});

    EXPECT_EQ(Compare(frame, 4, 1, {kBlue, kRed, kNone, kRed}),
              (PixelDifferences{
                  .compared = 4, .filled = 1, .holes = 1, .recolored = 1, .distance = 510}));
}

TEST(FrameComparison, TransparentPixelsHaveNoColor) {
    EXPECT_FALSE(Compare(FrameOf(2, 1, {0x00123456, 0x7F123456}), 2, 1, {kNone, kNone}).Any());
}

TEST(FrameComparison, OfHalfTransparentPixelsOnlyTheHalfCounts) {
    EXPECT_FALSE(Compare(FrameOf(1, 1, {0xFE00FF00}), 1, 1, {kRed}).Any());
    EXPECT_EQ(Compare(FrameOf(1, 1, {0x81FF0000}), 1, 1, {kNone}).holes, 1);
    EXPECT_EQ(Compare(FrameOf(1, 1, {0x7FFF0000}), 1, 1, {kRed}).filled, 1);
    EXPECT_FALSE(Compare(FrameOf(1, 1, {0x80FFFFFF}), 1, 1, {kRed}).Any());
    EXPECT_FALSE(Compare(FrameOf(1, 1, {0x80FFFFFF}), 1, 1, {kNone}).Any());
}

TEST(FrameComparison, LooksAroundTheFrameUnlessItIsAPart) {
    const Frame frame = FrameOf(1, 1, {kRed}, 1, 1);
    const std::vector<uint32> shown = {kBlue, kNone, kNone,  //
                                       kBlue, kRed,  kBlue,  //
                                       kNone, kNone, kBlue};

    EXPECT_EQ(Compare(frame, 3, 3, shown), (PixelDifferences{.compared = 9, .outside = 4}));
    EXPECT_EQ(Compare(frame, 3, 3, shown, true), (PixelDifferences{.compared = 1}));
}

TEST(FrameComparison, AFrameMayOverhangTheScreen) {
    const Frame frame = FrameOf(2, 2, {kRed, kBlue, kBlue, kBlue}, 1, 1);

    EXPECT_FALSE(Compare(frame, 2, 2, {kNone, kNone, kNone, kRed}).Any());
    EXPECT_FALSE(Compare(FrameOf(1, 1, {kRed}, 7, 7), 2, 2, {kNone, kNone, kNone, kNone}).Any());
}

TEST(FrameComparison, WhatAPictureLacksOfItsFrameOrTheScreenIsTransparent) {
    Frame frame = FrameOf(1, 1, {kRed});
    frame.width = 2;
    frame.height = 2;
    FrameComparison comparison(3, 3, false, nullptr);

    EXPECT_FALSE(comparison.Compare(frame, *FramePictureOf(1, 1, {kRed})).Any());
    frame.bitmap = nullptr;
    EXPECT_EQ(comparison.Compare(frame, *FramePictureOf(1, 1, {kRed})).filled, 1);
}

TEST(FrameComparison, KnowsPixelsInTheOtherByteOrder) {
    const Frame frame = FrameOf(2, 1, {kRed, kNone}, 0, 0, B_RGB32_BIG);

    EXPECT_FALSE(Compare(frame, 2, 1, {kRed, kNone}).Any());
    EXPECT_EQ(Compare(frame, 2, 1, {kBlue, kNone}).recolored, 1);
}

TEST(FrameComparison, CountsAgainWhatPicturesShare) {
    FrameComparison comparison(1, 1, false, nullptr);
    const Frame frame = FrameOf(1, 1, {kRed});
    const auto shown = FramePictureOf(1, 1, {kBlue});

    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(comparison.Compare(frame, *shown).recolored, 1);
}

TEST(FrameComparison, CountsAsAPlainLoopDoes) {
    std::mt19937 random(5);
    constexpr uint32 kPixels[] = {kRed, kBlue, kNone, kRed};
    const auto pixels = [&](int32 count) {
        std::vector<uint32> argb;
        for (int32 i = 0; i < count; ++i)
            argb.push_back(kPixels[random() % 4]);
        return argb;
    };
    const auto number = [&](uint32 bound) { return static_cast<int32>(random() % bound); };
    for (int round = 0; round < 50; ++round) {
        const int32 width = 1 + number(40);
        const int32 height = 1 + number(200);
        const auto shown = FramePictureOf(width, height, pixels(width * height));
        const int32 frame_width = 1 + number(50);
        const int32 frame_height = 1 + number(200);
        const Frame frame = FrameOf(frame_width, frame_height, pixels(frame_width * frame_height),
                                    number(30), number(100));
        FrameComparison comparison(width, height, false, nullptr);

        EXPECT_EQ(comparison.Compare(frame, *shown), PlainlyCompared(frame, width, height, *shown));
    }
}

TEST(FrameComparison, EndsWhereTheWorkIsStopped) {
    Work work;
    work.StopAll();
    FrameComparison comparison(1, 1, false, &work);

    EXPECT_FALSE(comparison.Compare(FrameOf(1, 1, {kRed}), *FramePictureOf(1, 1, {kBlue})).Any());
}

TEST(ShowTheSame, ComparesPlacesAndPixels) {
    const Frame frame = FrameOf(2, 1, {kRed, kBlue});

    EXPECT_TRUE(ShowTheSame(frame, frame));
    EXPECT_TRUE(ShowTheSame(frame, FrameOf(2, 1, {kRed, kBlue})));
    EXPECT_FALSE(ShowTheSame(frame, FrameOf(2, 1, {kRed, kRed})));
    EXPECT_FALSE(ShowTheSame(frame, FrameOf(1, 2, {kRed, kBlue})));
    EXPECT_FALSE(ShowTheSame(frame, FrameOf(2, 1, {kRed, kBlue}, 1)));
    EXPECT_FALSE(ShowTheSame(frame, Frame("none", 2, 1)));
}

}  // namespace kirto::test
