#include "ui/controls/picture_painter.h"

#include <gtest/gtest.h>

#include "support/colors.h"
#include "support/test_support.h"

namespace kirto::test {
namespace {

QPalette BlackOnWhite() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    return palette;
}

// A canvas of 24 x 24 units in green, with a picture painted over the rectangle.
QImage Painted(const std::shared_ptr<const Picture>& picture, const BRect& rectangle,
               bool draw_transparent = true, qreal ratio = 1) {
    QImage canvas(QSize(24, 24) * ratio, QImage::Format_RGB32);
    canvas.setDevicePixelRatio(ratio);
    canvas.fill(Qt::green);
    QPainter painter(&canvas);
    ThumbnailCache cache;
    PicturePainter(painter, BlackOnWhite(), draw_transparent, cache).Draw(picture, rectangle);
    return canvas;
}

TEST(PicturePainter, CoversExactlyThePixelsOfTheRectangle) {
    const auto picture = FramePictureOf(1, 1, {kRed});
    const QImage canvas = Painted(picture, BRect(4, 5, 13, 8));
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 24; ++x) {
            const bool inside = x >= 4 && x <= 13 && y >= 5 && y <= 8;
            ASSERT_EQ(canvas.pixel(x, y), inside ? kRed : 0xFF00FF00) << x << ' ' << y;
        }
    }
}

TEST(PicturePainter, PutsEdgesOnWholePixelsOfTheDevice) {
    EXPECT_EQ(OnPixels(BRect(4.3f, 5, 8.6f, 9), 1), QRectF(4, 5, 5, 5));
    EXPECT_EQ(OnPixels(BRect(4.3f, 5, 8.6f, 9), 2), QRectF(4.5, 5, 5.5, 5));
    EXPECT_EQ(OnPixels(BRect(4, 5, 3, 4), 1), QRectF(4, 5, 1, 1));
}

TEST(PicturePainter, ScalesToThePixelsOfTheDevice) {
    const auto picture = FramePictureOf(2, 1, {kRed, 0xFF0000FF});
    const QImage canvas = Painted(picture, BRect(0, 0, 0, 0), true, 2);
    EXPECT_EQ(canvas.pixel(0, 0), kRed);
    EXPECT_EQ(canvas.pixel(1, 0), 0xFF0000FFu);
}

TEST(PicturePainter, ShowsACheckerboardThroughTransparentPixels) {
    for (const color_space space : {B_RGB32, B_RGBA32}) {
        const auto picture = FramePictureOf(24, 24, std::vector<uint32>(24 * 24, 0), space);
        const QImage canvas = Painted(picture, BRect(0, 0, 23, 23));
        EXPECT_NE(canvas.pixel(1, 1), canvas.pixel(7, 1));
        EXPECT_EQ(canvas.pixel(1, 1), canvas.pixel(7, 7));
        EXPECT_EQ(canvas.pixel(7, 1), canvas.pixel(1, 7));
    }
}

TEST(PicturePainter, ShowsPlainGreyThroughTransparentPixelsWhenAskedTo) {
    const auto picture = FramePictureOf(24, 24, std::vector<uint32>(24 * 24, 0));
    const QImage canvas = Painted(picture, BRect(0, 0, 23, 23), false);
    const QRgb grey = canvas.pixel(0, 0);
    EXPECT_EQ(qRed(grey), qGreen(grey));
    EXPECT_EQ(qRed(grey), qBlue(grey));
    for (int i = 0; i < 24; ++i)
        EXPECT_EQ(canvas.pixel(i, 23 - i), grey);
}

TEST(PicturePainter, MixesHalfTransparentPixelsWithWhatIsBehind) {
    const auto picture = FramePictureOf(4, 4, std::vector<uint32>(16, 0x80FF0000));
    const QRgb mixed = Painted(picture, BRect(0, 0, 3, 3)).pixel(1, 1);
    EXPECT_GT(qRed(mixed), 220);
    EXPECT_GT(qGreen(mixed), 80);
    EXPECT_LT(qGreen(mixed), 140);
}

TEST(PicturePainter, ShowsOnlyWhatIsBehindWhereThereIsNo32BitPicture) {
    const auto picture = Picture::Of(std::make_shared<BBitmap>(BRect(0, 0, 3, 3), B_CMAP8));
    const QImage canvas = Painted(picture, BRect(0, 0, 11, 11));
    EXPECT_NE(canvas.pixel(1, 1), canvas.pixel(7, 1));
    EXPECT_EQ(canvas.pixel(13, 1), 0xFF00FF00u);
}

TEST(PicturePainter, PaintsThumbnailsOfAnyWidthWithoutKeepingHugeOnes) {
    const auto picture = FramePictureOf(4000, 1, std::vector<uint32>(4000, kRed));
    QImage canvas(24, 24, QImage::Format_RGB32);
    canvas.fill(Qt::green);
    ThumbnailCache cache;
    {
        QPainter painter(&canvas);
        PicturePainter(painter, BlackOnWhite(), true, cache)
            .Draw(picture, BRect(4, 5, 4 + 4000 * 400, 404));
    }
    EXPECT_EQ(canvas.pixel(3, 10), 0xFF00FF00u);
    EXPECT_EQ(canvas.pixel(23, 23), kRed);
    EXPECT_TRUE(cache.Find(picture, {4000 * 400 + 1, 400}).isNull());
}

TEST(PicturePainter, PaintsCoarselyWhenScalingHasHadItsTimeAndSaysSo) {
    // As many pictures as it takes, each of a size that is slow to scale.
    QImage canvas(24, 24, QImage::Format_RGB32);
    ThumbnailCache cache;
    QPainter painter(&canvas);
    PicturePainter pictures(painter, BlackOnWhite(), true, cache);
    std::shared_ptr<const Picture> picture;
    for (int i = 0; i < 2000 && !pictures.WasCoarse(); ++i) {
        picture = FramePictureOf(512, 512, std::vector<uint32>(512 * 512, kRed));
        canvas.fill(Qt::green);
        pictures.Draw(picture, BRect(0, 0, 9, 9));
        ASSERT_EQ(canvas.pixel(5, 5), kRed);
    }
    ASSERT_TRUE(pictures.WasCoarse());
    EXPECT_TRUE(cache.Find(picture, {10, 10}).isNull());
}

}  // namespace
}  // namespace kirto::test
