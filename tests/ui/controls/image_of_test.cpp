#include "ui/controls/image_of.h"

#include <gtest/gtest.h>

#include "support/test_support.h"

namespace kirto::test {

TEST(ImageOf, HasThePixelsOfThePictureInEachColorSpace) {
    for (const color_space space : {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG}) {
        const QImage image =
            ImageOf(FramePictureOf(2, 1, {0x80102030, 0xFF405060}, space), QSize(1, 1));

        ASSERT_EQ(image.size(), QSize(2, 1));
        EXPECT_EQ(image.pixel(0, 0), 0x80102030);
        EXPECT_EQ(image.pixel(1, 0), 0xFF405060);
    }
}

TEST(ImageOf, HasAnAlphaChannelOnlyWhereAPixelIsTransparent) {
    EXPECT_TRUE(ImageOf(FramePictureOf(2, 1, {0, 0xFF405060}), QSize(2, 1)).hasAlphaChannel());
    EXPECT_FALSE(
        ImageOf(FramePictureOf(2, 1, {0xFF000000, 0xFF405060}), QSize(2, 1)).hasAlphaChannel());
}

TEST(ImageOf, IsNullWithoutRows) {
    EXPECT_TRUE(ImageOf(nullptr, QSize(1, 1)).isNull());
    const auto grey = Picture::Of(std::make_shared<BBitmap>(BRect::OfSize(1, 1), B_GRAY8));
    EXPECT_TRUE(ImageOf(grey, QSize(1, 1)).isNull());
}

TEST(ImageOf, ThinsOutHugePicturesButNotBelowTwiceTheSizeShown) {
    const auto huge = Picture::Solid(0xFF112233, 20000, 10000, B_RGB32, nullptr);
    const QImage image = ImageOf(huge, QSize(200, 100));

    EXPECT_EQ(image.size(), QSize(400, 200));
    EXPECT_EQ(image.pixel(399, 199), 0xFF112233);
}

}  // namespace kirto::test
