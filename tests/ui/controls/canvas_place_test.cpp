#include "ui/controls/canvas_place.h"

#include <gtest/gtest.h>
#include <limits>

namespace kirto::test {

namespace {

Frame FrameAt(int32 x, int32 y) {
    Frame frame("frame", 30, 20);
    frame.x_offset = x;
    frame.y_offset = y;
    return frame;
}

TEST(PaintedCanvas, IsThatOfTheAnimationAsFarAsThereAreFilesOfIt) {
    Animation animation;
    animation.width = 320;
    animation.height = 0;
    EXPECT_EQ(PaintedCanvasOf(animation), QSize(320, 1));
    animation.width = std::numeric_limits<int32>::max();
    EXPECT_EQ(PaintedCanvasOf(animation), QSize(65535, 1));
}

TEST(PlaceOnCanvas, IsTheFramesOwnPlaceAndSize) {
    EXPECT_EQ(PlaceOnCanvas(FrameAt(5, -7)), QRect(5, -7, 30, 20));
}

TEST(PlaceOnCanvas, IsScaledWithTheCanvas) {
    EXPECT_EQ(PlaceOnCanvas(FrameAt(5, 9), 2, 0.5), QRect(10, 5, 60, 10));
}

TEST(PlaceOnCanvas, OfFramesFarAwayCanBePaintedAndIsBesideAllCanvases) {
    constexpr int32 kFarthest = std::numeric_limits<int32>::max();
    constexpr QRect kLargestCanvas(0, 0, 65535, 65535);
    for (const double factor : {1.0, 65535.0}) {
        for (const int32 offset : {kFarthest, -kFarthest}) {
            const QRect place = PlaceOnCanvas(FrameAt(offset, 0), factor, factor);
            EXPECT_FALSE(place.intersects(kLargestCanvas)) << offset;
            EXPECT_GE(place.right(), place.left()) << offset;
        }
    }
}

}  // namespace

}  // namespace kirto::test
