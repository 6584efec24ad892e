#include "ui/shell/editor_style.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>
#include <cmath>
#include <gtest/gtest.h>

namespace kirto::test {

namespace {

const QPalette kDark(QColor(49, 54, 59), QColor(42, 46, 50));
const QPalette kContrast(Qt::black, Qt::black);
const QPalette kLight(QColor(239, 239, 239), QColor(239, 239, 239));

// An unchecked box or radio button of 16 x 16 pixels on the window's color.
QImage Drawn(const QStyle& style, QStyle::PrimitiveElement element, const QPalette& colors) {
    QStyleOptionButton option;
    option.rect = QRect(0, 0, 16, 16);
    option.palette = colors;
    option.state = QStyle::State_Enabled | QStyle::State_Off;
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(colors.color(QPalette::Window));
    QPainter painter(&image);
    style.drawPrimitive(element, &option, &painter);
    return image;
}

double Luminance(QColor color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double Contrast(QColor first, QColor second) {
    const double one = Luminance(first) + 0.05;
    const double two = Luminance(second) + 0.05;
    return std::max(one, two) / std::min(one, two);
}

TEST(EditorStyle, OutlinesUncheckedBoxesAndRadioButtonsInDarkColors) {
    const EditorStyle style("fusion");
    // What can be told apart at a glance.
    constexpr double kVisible = 3;
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        const QImage image = Drawn(style, element, kDark);
        for (const QPoint edge : {QPoint(8, 0), QPoint(0, 8), QPoint(8, 15), QPoint(15, 8)}) {
            EXPECT_GE(Contrast(image.pixelColor(edge), kDark.color(QPalette::Window)), kVisible)
                << element << ' ' << edge.x() << ' ' << edge.y();
        }
    }
}

TEST(EditorStyle, OutlinesFieldsListsAndBoxesLikeTextInHighContrast) {
    const EditorStyle style("fusion");
    constexpr double kReadable = 7;
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton,
                               QStyle::PE_FrameLineEdit, QStyle::PE_Frame, QStyle::PE_FrameGroupBox,
                               QStyle::PE_FrameTabWidget, QStyle::PE_PanelButtonCommand}) {
        const QImage image = Drawn(style, element, kContrast);
        for (const QPoint edge : {QPoint(8, 0), QPoint(0, 8), QPoint(8, 15), QPoint(15, 8)}) {
            EXPECT_GE(Contrast(image.pixelColor(edge), Qt::black), kReadable)
                << element << ' ' << edge.x() << ' ' << edge.y();
        }
    }
}

TEST(EditorStyle, OutlinesSpinBoxesAndMenusLikeTextInHighContrast) {
    const EditorStyle style("fusion");
    constexpr double kReadable = 7;
    QStyleOptionSpinBox spin_box;
    QStyleOptionComboBox menu;
    const auto expect_outline = [&](QStyle::ComplexControl control, QStyleOptionComplex& option) {
        option.rect = QRect(0, 0, 64, 24);
        option.palette = kContrast;
        option.state = QStyle::State_Enabled;
        QImage image(64, 24, QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        style.drawComplexControl(control, &option, &painter, nullptr);
        for (const QPoint edge : {QPoint(32, 0), QPoint(0, 12), QPoint(32, 23), QPoint(63, 12)})
            EXPECT_GE(Contrast(image.pixelColor(edge), Qt::black), kReadable) << control;
    };
    expect_outline(QStyle::CC_SpinBox, spin_box);
    expect_outline(QStyle::CC_ComboBox, menu);
}

TEST(EditorStyle, OutlinesTheHandleAndTheGrooveOfSlidersLikeTextInHighContrast) {
    const EditorStyle editor_style("fusion");
    const QStyle& style = editor_style;
    constexpr double kReadable = 7;
    QStyleOptionSlider option;
    option.rect = QRect(0, 0, 100, 24);
    option.palette = kContrast;
    option.state = QStyle::State_Enabled | QStyle::State_Horizontal;
    option.orientation = Qt::Horizontal;
    option.maximum = 10;
    option.sliderPosition = 5;
    option.subControls = QStyle::SC_SliderGroove | QStyle::SC_SliderHandle;
    QImage image(100, 24, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);

    style.drawComplexControl(QStyle::CC_Slider, &option, &painter, nullptr);

    const QRect handle = style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle);
    const QRect groove = style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove);
    const QPoint beside(handle.left() / 2, groove.top());
    for (const QPoint edge : {QPoint(handle.left(), handle.center().y()),
                              QPoint(handle.center().x(), handle.bottom()), beside})
        EXPECT_GE(Contrast(image.pixelColor(edge), Qt::black), kReadable)
            << edge.x() << ' ' << edge.y();
}

TEST(EditorStyle, BoxesGrowWithTheLettersAndAreNeverSmallerThanTheDesktops) {
    const EditorStyle editor_style("fusion");
    const QStyle& style = editor_style;
    const QStyle& base = *editor_style.baseStyle();
    QStyleOptionButton small;
    QFont font;
    font.setPixelSize(6);
    small.fontMetrics = QFontMetrics(font);
    font.setPixelSize(40);
    QStyleOptionButton large;
    large.fontMetrics = QFontMetrics(font);
    for (const auto metric :
         {QStyle::PM_IndicatorWidth, QStyle::PM_IndicatorHeight, QStyle::PM_ExclusiveIndicatorWidth,
          QStyle::PM_ExclusiveIndicatorHeight}) {
        EXPECT_EQ(style.pixelMetric(metric, &small), base.pixelMetric(metric, &small)) << metric;
        EXPECT_GE(style.pixelMetric(metric, &large), 30) << metric;
    }
    EXPECT_EQ(style.pixelMetric(QStyle::PM_ScrollBarExtent, &large),
              base.pixelMetric(QStyle::PM_ScrollBarExtent, &large));
}

TEST(EditorStyle, DrawsFieldsAndListsAsTheDesktopDoesInOtherColors) {
    const EditorStyle style("fusion");
    for (const auto element : {QStyle::PE_FrameLineEdit, QStyle::PE_Frame}) {
        for (const QPalette& colors : {kDark, kLight})
            EXPECT_EQ(Drawn(style, element, colors), Drawn(*style.baseStyle(), element, colors));
    }
}

TEST(EditorStyle, DrawsBoxesAsTheDesktopDoesInLightColors) {
    const EditorStyle style("fusion");
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
        EXPECT_EQ(Drawn(style, element, kLight), Drawn(*style.baseStyle(), element, kLight));
    }
}

}  // namespace

}  // namespace kirto::test
