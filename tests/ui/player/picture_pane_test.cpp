#include "ui/player/picture_pane.h"

#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

namespace kirto::test {

namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kBlue = 0xFF0000FF;

// A canvas of 4 x 2 with a picture of a red and a blue half, in a pane of 200 x 100.
class PicturePaneTest : public ::testing::Test {
  protected:
    PicturePaneTest() {
        pane.resize(200, 100);
        pane.SetCanvas({4, 2});
        picture.fill(kRed);
        for (int x : {2, 3})
            for (int y : {0, 1})
                picture.setPixel(x, y, kBlue);
        pane.SetLayers({{picture, QRect(0, 0, 4, 2)}});
    }

    QImage Grab() { return pane.grab().toImage(); }
    void Turn(int angle, QPointF at) {
        QWheelEvent event(at, at, {}, {0, angle}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&pane, &event);
    }

    PicturePane pane;
    QImage picture{4, 2, QImage::Format_RGB32};
};

TEST_F(PicturePaneTest, FitsTheCanvasIntoItsMiddle) {
    EXPECT_TRUE(pane.IsFitted());
    EXPECT_EQ(pane.Zoom(), 8);
    EXPECT_EQ(pane.PlaceOf({0, 0, 4, 2}), QRectF(84, 42, 32, 16));
    pane.SetCanvas({400, 100});
    EXPECT_DOUBLE_EQ(pane.Zoom(), 188.0 / 400);
}

TEST_F(PicturePaneTest, ShowsCrispPixelsHoweverLargeTheyAre) {
    pane.SetZoom(PicturePane::kMostZoom);
    const QImage image = Grab();
    const int middle = 100;
    EXPECT_EQ(image.pixel(middle - 1, 50), kRed);
    EXPECT_EQ(image.pixel(middle, 50), kBlue);
    EXPECT_EQ(image.pixel(middle - 64, 50), kRed);
}

TEST_F(PicturePaneTest, ZoomsByFingersAboutThePlaceBetweenThem) {
    pane.SetCanvas({100, 100});
    pane.SetZoom(8);
    const QPointF at(90, 45);
    const std::optional<QPoint> before = pane.PixelAt(at);
    const auto pinch = [&](Qt::NativeGestureType type, double value) {
        QNativeGestureEvent event(type, QPointingDevice::primaryPointingDevice(), 2, at, at,
                                  pane.mapToGlobal(at), value, {});
        QCoreApplication::sendEvent(&pane, &event);
    };
    pinch(Qt::ZoomNativeGesture, 0.5);
    EXPECT_EQ(pane.Zoom(), 12);
    EXPECT_EQ(pane.PixelAt(at), before);
    pinch(Qt::ZoomNativeGesture, -0.5);
    EXPECT_EQ(pane.Zoom(), 6);
    EXPECT_EQ(pane.PixelAt(at), before);
    pinch(Qt::RotateNativeGesture, 0.5);
    EXPECT_EQ(pane.Zoom(), 6);
}

TEST_F(PicturePaneTest, ZoomsAboutThePointer) {
    pane.SetCanvas({100, 100});
    pane.SetZoom(8);
    const QPointF at(90, 45);
    const std::optional<QPoint> before = pane.PixelAt(at);
    Turn(120, at);
    EXPECT_EQ(pane.Zoom(), 12);
    EXPECT_EQ(pane.PixelAt(at), before);
    Turn(-60, at);
    EXPECT_EQ(pane.Zoom(), 12) << "half a step of a wheel without steps";
    Turn(-60, at);
    EXPECT_EQ(pane.Zoom(), 8);
}

TEST_F(PicturePaneTest, ZoomsInUsualStepsWithinItsBounds) {
    pane.SetZoom(1.2);
    pane.ZoomIn();
    EXPECT_EQ(pane.Zoom(), 1.5);
    pane.ZoomOut();
    EXPECT_EQ(pane.Zoom(), 1);
    for (int i = 0; i < 40; ++i)
        pane.ZoomIn();
    EXPECT_EQ(pane.Zoom(), PicturePane::kMostZoom);
    for (int i = 0; i < 40; ++i)
        pane.ZoomOut();
    EXPECT_EQ(pane.Zoom(), PicturePane::kLeastZoom);
    pane.Fit();
    EXPECT_EQ(pane.Zoom(), 8);
}

TEST_F(PicturePaneTest, IsDraggedAboutWhereTheCanvasIsLarger) {
    pane.SetCanvas({100, 100});
    pane.SetZoom(4);
    const QPointF before = pane.PlaceOf({0, 0, 1, 1}).topLeft();
    QTest::mousePress(&pane, Qt::LeftButton, {}, {50, 50});
    QTest::mouseMove(&pane, {60, 45});
    QTest::mouseRelease(&pane, Qt::LeftButton, {}, {60, 45});
    EXPECT_EQ(pane.PlaceOf({0, 0, 1, 1}).topLeft() - before, QPointF(10, -5));
}

TEST_F(PicturePaneTest, TellsThePixelBelowThePointer) {
    pane.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&pane));
    std::vector<std::optional<QPoint>> told;
    pane.WhenPointed([&](std::optional<QPoint> pixel) { told.push_back(pixel); });
    QTest::mouseMove(&pane, {84, 42});
    QTest::mouseMove(&pane, {115, 57});
    QTest::mouseMove(&pane, {116, 57});
    EXPECT_EQ(told, (std::vector<std::optional<QPoint>>{QPoint(0, 0), QPoint(3, 1), std::nullopt}));
}

TEST_F(PicturePaneTest, ShowsACheckerboardBelowWhatIsTransparentAndNothingBesideTheCanvas) {
    pane.SetCanvas({10, 5});
    QImage clear(10, 5, QImage::Format_ARGB32_Premultiplied);
    clear.fill(Qt::transparent);
    pane.SetLayers({{clear, QRect(0, 0, 10, 5)}});
    const QImage image = Grab();
    const QRectF canvas = pane.PlaceOf({0, 0, 10, 5});
    const QPoint corner = canvas.topLeft().toPoint();
    EXPECT_NE(image.pixel(corner + QPoint(3, 3)), image.pixel(corner + QPoint(9, 3)));
    EXPECT_EQ(image.pixelColor(2, 2), pane.palette().color(QPalette::Base));
}

TEST_F(PicturePaneTest, CutsLayersOffAtTheCanvasAndMixesThem) {
    QImage green(10, 10, QImage::Format_RGB32);
    green.fill(Qt::green);
    pane.SetLayers({{picture, QRect(0, 0, 4, 2)}, {green, QRect(0, 0, 10, 10), 0.5}});
    const QImage image = Grab();
    const QColor mixed = image.pixelColor(86, 44);
    EXPECT_NEAR(mixed.red(), 128, 2);
    EXPECT_NEAR(mixed.green(), 128, 2);
    EXPECT_EQ(image.pixelColor(130, 44), pane.palette().color(QPalette::Base));
}

}  // namespace

}  // namespace kirto::test
