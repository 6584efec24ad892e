#include "kit/qt/text_picture.h"

#include <gtest/gtest.h>

namespace kirto::test {

TEST(PictureOfText, IsAsLargeAsTheTextWithItsOutline) {
    TextStyle style;
    style.font.setPixelSize(20);
    const QImage plain = PictureOfText("Hi", style);
    const QImage longer = PictureOfText("Hi there", style);
    style.outline_width = 3;
    const QImage outlined = PictureOfText("Hi", style);

    EXPECT_TRUE(PictureOfText("", style).isNull());
    EXPECT_TRUE(PictureOfText(" ", style).isNull());
    EXPECT_GT(longer.width(), plain.width());
    EXPECT_EQ(outlined.width(), plain.width() + 6);
    EXPECT_EQ(plain.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(plain.format(), QImage::Format_ARGB32);
}

TEST(PictureOfText, BreaksLinesWhereTheTextDoes) {
    TextStyle style;
    style.font.setPixelSize(20);

    EXPECT_GT(PictureOfText("A\nA", style).height(), PictureOfText("A", style).height() + 15);
    EXPECT_EQ(PictureOfText("A\nA", style).width(), PictureOfText("A", style).width());
}

TEST(PictureOfText, BecomesAPngFileThatIsReadAsTheSamePicture) {
    TextStyle style;
    style.font.setPixelSize(20);
    style.outline_width = 2;
    const QImage image = PictureOfText("Hi", style);

    const std::string png = PngOf(image);

    const QImage read = QImage::fromData(QByteArray::fromStdString(png), "PNG");
    EXPECT_EQ(read.convertToFormat(image.format()), image);
    EXPECT_EQ(PngOf(QImage()), "");
}

}  // namespace kirto::test
