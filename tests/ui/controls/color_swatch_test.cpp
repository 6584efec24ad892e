#include "ui/controls/color_swatch.h"

#include <gtest/gtest.h>

namespace kirto::test {

TEST(ColorSwatch, ShowsTheColorThatHoldsWhenItIsPainted) {
    QColor color = Qt::red;
    ColorSwatch swatch(
        "Preview", [&color] { return color; }, nullptr);
    swatch.resize(20, 20);
    EXPECT_EQ(swatch.grab().toImage().pixelColor(10, 10), QColor(Qt::red));

    color = Qt::blue;
    EXPECT_EQ(swatch.grab().toImage().pixelColor(10, 10), QColor(Qt::blue));
}

TEST(ColorSwatch, GrowsWithTheText) {
    ColorSwatch swatch(
        "Preview", [] { return QColor(); }, nullptr);
    const QSize before = swatch.sizeHint();
    QFont font = swatch.font();
    font.setPointSize(3 * font.pointSize());
    swatch.setFont(font);
    EXPECT_GT(swatch.sizeHint().height(), before.height());
}

}  // namespace kirto::test
