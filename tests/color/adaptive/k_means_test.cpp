#include "color/adaptive/k_means.h"

#include <gtest/gtest.h>

#include "color/adaptive/counted_colors.h"

namespace kirto::test {

namespace {

ColorCenters FirstPoints(std::span<const ColorPoint> points, size_t count) {
    ColorCenters centers;
    for (; centers.count < count; ++centers.count)
        centers.colors[centers.count] = points[centers.count].color;
    return centers;
}

int32 LeastDistance(const ColorCenters& centers, const ColorPoint& point) {
    int32 least = std::numeric_limits<int32>::max();
    for (size_t i = 0; i < centers.count; ++i)
        least = std::min(least, ColorDistance(centers.colors[i], point.color));
    return least;
}

}  // namespace

TEST(KMeans, FindsTheNearestCenterOfEachPointInEveryRound) {
    const ColorPoints points(RandomCountedColors(2000, 21));
    for (const size_t count : {1U, 2U, 20U, 256U}) {
        KMeans k_means(points.All());
        ASSERT_TRUE(k_means.Ready());
        ColorCenters centers = FirstPoints(points.All(), count);
        for (int round = 0; round < 5; ++round) {
            const ColorCenters before = centers;
            ASSERT_TRUE(k_means.Settle(&centers, 1));
            for (size_t i = 0; i < points.All().size(); ++i) {
                const ColorComponents& nearest = before.colors[k_means.Nearest()[i]];
                ASSERT_EQ(ColorDistance(nearest, points.All()[i].color),
                          LeastDistance(before, points.All()[i]));
            }
        }
    }
}

TEST(KMeans, LowersTheErrorUntilItSettles) {
    const ColorPoints points(CountedColorsOf(PhotoPixels(100, 80)));
    KMeans k_means(points.All());
    ColorCenters centers = FirstPoints(points.All(), 32);
    double error = std::numeric_limits<double>::max();
    for (int round = 0; round < 8; ++round) {
        ASSERT_TRUE(k_means.Settle(&centers, 1));
        EXPECT_LE(k_means.Error(), error * 1.0001);
        error = k_means.Error();
    }
}

TEST(KMeans, LeavesFixedCentersWhereTheyAre) {
    const ColorPoints points(RandomCountedColors(500, 22));
    KMeans k_means(points.All());
    ColorCenters centers = FirstPoints(points.All(), 10);
    centers.fixed = 3;
    const ColorCenters before = centers;

    ASSERT_TRUE(k_means.Settle(&centers, 10));

    for (size_t i = 0; i < 3; ++i)
        EXPECT_EQ(centers.colors[i], before.colors[i]);
    EXPECT_NE(centers.colors[3], before.colors[3]);
}

TEST(KMeans, GivesACenterWithoutPointsTheOneThatCostsMost) {
    const ColorPoints points(CountedColors{{0x000000, 9}, {0x000004, 9}, {0xFFFFFF, 1}});
    KMeans k_means(points.All());
    ColorCenters centers;
    centers.count = 2;
    centers.colors = {ColorComponents{0, 0, 0}, ColorComponents{0, 0, 0}};

    ASSERT_TRUE(k_means.Settle(&centers, 1));

    EXPECT_EQ(centers.colors[1], points.All()[2].color);
}

TEST(KMeans, EndsEarlyWhenTheWorkIsStopped) {
    const ColorPoints points(RandomCountedColors(500, 23));
    Work work;
    KMeans k_means(points.All(), &work);
    ColorCenters centers = FirstPoints(points.All(), 10);
    work.StopAll();

    EXPECT_FALSE(k_means.Settle(&centers, 10));
}

}  // namespace kirto::test
