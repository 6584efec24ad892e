#include "kit/qt/picture_image.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

TEST(PictureImage, SharesPixelsInTheOrderThatPaintingTakes) {
    const auto picture = PictureOf(2, 1, {0xFF102030, 0xFF405060});
    const QImage image = ImageOfPicture(picture);
    EXPECT_EQ(image.constBits(), picture->Bits());
    EXPECT_FALSE(image.hasAlphaChannel());
    EXPECT_EQ(image.pixel(1, 0), 0xFF405060u);
}

TEST(PictureImage, SharesPixelsWithAPictureThatItDoesNotKeep) {
    const auto picture = PictureOf(2, 1, {0x00102030, 0xFF405060});
    const QImage image = ImageOfPicture(*picture);
    EXPECT_EQ(picture.use_count(), 1);
    EXPECT_EQ(image.constBits(), picture->Bits());
    EXPECT_TRUE(image.hasAlphaChannel());
}

TEST(PictureImage, TakesAlphaSeriouslyInAllFourColourSpaces) {
    for (const color_space space : {B_RGB32, B_RGBA32}) {
        const QImage image = ImageOfPicture(PictureOf(2, 1, {0x00000000, 0xFF405060}, space));
        EXPECT_EQ(image.pixel(0, 0), 0u);
        EXPECT_EQ(image.pixel(1, 0), 0xFF405060u);
    }
    for (const color_space space : {B_RGB32_BIG, B_RGBA32_BIG}) {
        const auto picture = std::make_shared<BBitmap>(BRect(0, 0, 1, 0), space);
        const uint8 bytes[] = {0, 0, 0, 0, 0xFF, 0x40, 0x50, 0x60};
        std::copy(std::begin(bytes), std::end(bytes), picture->Bits());
        const QImage image = ImageOfPicture(picture);
        EXPECT_EQ(image.pixel(0, 0), 0u);
        EXPECT_EQ(image.pixel(1, 0), 0xFF405060u);
    }
}

TEST(PictureImage, IsNullForWhatIsNo32BitPicture) {
    EXPECT_TRUE(ImageOfPicture(nullptr).isNull());
    EXPECT_TRUE(ImageOfPicture(std::make_shared<BBitmap>(BRect(0, 0, 3, 3), B_CMAP8)).isNull());
    EXPECT_TRUE(ImageOfPicture(std::make_shared<BBitmap>(BRect(), B_RGB32)).isNull());
}

TEST(PictureImage, KeepsThePictureAliveWhileItIsPainted) {
    auto picture = PictureOf(1, 1, {kRed});
    const std::weak_ptr<BBitmap> life = picture;
    QImage image = ImageOfPicture(picture);
    picture.reset();
    EXPECT_FALSE(life.expired());
    image = QImage();
    EXPECT_TRUE(life.expired());
}

}  // namespace
}  // namespace kirto::test
