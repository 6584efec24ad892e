#include "ui/controls/thumbnail_cache.h"

#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

TEST(ThumbnailCache, ScalesOnceAndTellsPicturesAndSizesApart) {
    ThumbnailCache cache;
    const auto red = FramePictureOf(2, 2, std::vector<uint32>(4, kRed));
    const auto blue = FramePictureOf(2, 2, std::vector<uint32>(4, 0xFF0000FF));
    EXPECT_TRUE(cache.Find(red, {4, 4}).isNull());
    const QImage scaled = cache.Scaled(red, {4, 4});
    EXPECT_EQ(scaled.size(), QSize(4, 4));
    EXPECT_EQ(cache.Scaled(red, {4, 4}).cacheKey(), scaled.cacheKey());
    EXPECT_EQ(cache.Scaled(red, {3, 3}).size(), QSize(3, 3));
    EXPECT_EQ(cache.Scaled(blue, {4, 4}).pixel(1, 1), 0xFF0000FFu);
}

TEST(ThumbnailCache, ForgetsTheOldestWhenItIsFull) {
    ThumbnailCache cache(100);
    const auto first = FramePictureOf(4, 4, std::vector<uint32>(16, kRed));
    const auto second = FramePictureOf(4, 4, std::vector<uint32>(16, kRed));
    cache.Scaled(first, {4, 4});
    cache.Scaled(second, {4, 4});
    EXPECT_TRUE(cache.Find(first, {4, 4}).isNull());
    EXPECT_FALSE(cache.Find(second, {4, 4}).isNull());
    EXPECT_FALSE(cache.Scaled(first, {40, 40}).isNull());
    EXPECT_TRUE(cache.Find(first, {40, 40}).isNull());
}

TEST(ThumbnailCache, KeepsNoPictureAlive) {
    for (const uint32 color : {kRed, 0x80FF0000u}) {
        ThumbnailCache cache;
        auto picture = FramePictureOf(4, 4, std::vector<uint32>(16, color));
        const std::weak_ptr<const Picture> life = picture;
        cache.Scaled(picture, {4, 4});
        cache.Scaled(picture, {2, 2});
        picture.reset();
        EXPECT_TRUE(life.expired());
    }
}

TEST(ThumbnailCache, KeepsColoursBelowTransparentPixelsOutOfTheirNeighbours) {
    ThumbnailCache cache;
    const auto picture = FramePictureOf(2, 1, {kRed, 0x0000FF00}, B_RGBA32);
    const QImage scaled = cache.Scaled(picture, {1, 1});
    EXPECT_GT(qAlpha(scaled.pixel(0, 0)), 100);
    EXPECT_EQ(qGreen(scaled.pixel(0, 0)), 0);
}

}  // namespace
}  // namespace kirto::test
