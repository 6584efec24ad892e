#include "kit/rect.h"

#include <gtest/gtest.h>
#include <limits>

namespace kirto::test {

TEST(BRect, IsInvalidWhenMade) {
    EXPECT_FALSE(BRect().IsValid());
    EXPECT_EQ(BRect(), BRect(0, 0, -1, -1));
}

TEST(BRect, OnePointIsValid) {
    EXPECT_TRUE(BRect(3, 4, 3, 4).IsValid());
}

TEST(BRect, WidthAndHeightAreDistancesBetweenEdges) {
    const BRect rect(10, 20, 109, 69);
    EXPECT_EQ(rect.Width(), 99);
    EXPECT_EQ(rect.Height(), 49);
}

TEST(BRect, PixelsIncludeBothEdges) {
    const BRect rect(10, 20, 109, 69);
    EXPECT_EQ(rect.PixelWidth(), 100);
    EXPECT_EQ(rect.PixelHeight(), 50);
}

TEST(BRect, PartsOfPixelsCountAsWhole) {
    EXPECT_EQ(BRect(0, 0, 9.25F, 0.5F).PixelWidth(), 11);
    EXPECT_EQ(BRect(0, 0, 9.25F, 0.5F).PixelHeight(), 2);
}

TEST(BRect, EmptyOrReversedEdgesCoverNoPixel) {
    EXPECT_EQ(BRect(0, 0, -1, -1).PixelWidth(), 0);
    EXPECT_EQ(BRect(0, 0, -7, -9).PixelWidth(), 0);
    EXPECT_EQ(BRect(0, 0, -7, -9).PixelHeight(), 0);
}

TEST(BRect, EdgesTooFarApartCoverNoPixel) {
    EXPECT_EQ(BRect(-2e9F, 0, 2e9F, 0).PixelWidth(), 0);
    EXPECT_EQ(BRect(0, -2e9F, 0, 2e9F).PixelHeight(), 0);
}

TEST(BRect, EdgesThatAreNoNumbersCoverNoPixel) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    EXPECT_EQ(BRect(nan, 0, 5, 5).PixelWidth(), 0);
    EXPECT_EQ(BRect(0, 0, infinity, 5).PixelWidth(), 0);
    EXPECT_EQ(BRect(infinity, 0, infinity, 5).PixelWidth(), 0);
    EXPECT_FALSE(BRect(0, nan, 5, 5).IsValid());
}

TEST(BRect, OffsetByMovesAllEdges) {
    BRect rect(1, 2, 3, 4);
    rect.OffsetBy(10, -20);
    EXPECT_EQ(rect, BRect(11, -18, 13, -16));
}

TEST(BRect, OffsetToMovesTheLeftTopCorner) {
    BRect rect(1, 2, 3, 5);
    rect.OffsetTo(0, 100);
    EXPECT_EQ(rect, BRect(0, 100, 2, 103));
}

TEST(BRect, OfSizeStartsAtTheOrigin) {
    EXPECT_EQ(BRect::OfSize(320, 240), BRect(0, 0, 319, 239));
    EXPECT_EQ(BRect::OfSize(320, 240).PixelWidth(), 320);
    EXPECT_FALSE(BRect::OfSize(0, 0).IsValid());
    EXPECT_EQ(BRect::OfSize(1 << 24, 1).PixelWidth(), 1 << 24);
}

TEST(BRect, OfSizeTakesAnyNumber) {
    EXPECT_FALSE(BRect::OfSize(std::numeric_limits<int32>::min(), 1).IsValid());
}

}  // namespace kirto::test
