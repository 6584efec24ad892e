#include "ui/controls/toolbar.h"

#include <QLabel>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace kirto::test {

TEST(Toolbar, FillsItsWindowAndFollowsItsSize) {
    QWidget window;
    const Toolbar toolbar("Toolbar", &window);
    window.resize(300, 200);
    window.show();
    EXPECT_EQ(toolbar.geometry(), window.rect());
    window.resize(400, 100);
    EXPECT_EQ(toolbar.geometry(), window.rect());
}

TEST(Toolbar, KeepsItsWindowLargeEnoughForWhatIsOnIt) {
    QWidget window;
    Toolbar toolbar("Toolbar", &window);
    auto* layout = new QVBoxLayout(&toolbar);
    auto* child = new QLabel(&toolbar);
    child->setMinimumSize(500, 400);
    layout->addWidget(child);
    window.resize(10, 10);
    window.show();
    EXPECT_GE(window.width(), 500);
    EXPECT_GE(window.height(), 400);
}

TEST(Toolbar, DrawsABevelOfOnePixelAroundThePanelColor) {
    QWidget window;
    Toolbar toolbar("Toolbar", &window);
    window.resize(30, 20);
    window.show();

    const QImage image = toolbar.grab().toImage();

    const QRgb panel = toolbar.palette().color(QPalette::Window).rgb();
    const QRgb light = toolbar.palette().color(QPalette::Light).rgb();
    const QRgb dark = toolbar.palette().color(QPalette::Dark).rgb();
    EXPECT_EQ(image.pixel(10, 10), panel);
    EXPECT_EQ(image.pixel(1, 1), panel);
    EXPECT_EQ(image.pixel(0, 10), light);
    EXPECT_EQ(image.pixel(10, 0), light);
    EXPECT_EQ(image.pixel(image.width() - 1, 10), dark);
    EXPECT_EQ(image.pixel(10, image.height() - 1), dark);
}

}  // namespace kirto::test
