#include "ui/shell/editor_style.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>
#include <cstdlib>

namespace kirto {

namespace {

// The style's arrow to the right, in any size.
class ArrowIcon : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
        QStyleOption option;
        option.rect = rect;
        option.palette = QApplication::palette();
        option.state = QStyle::State_Enabled;
        QApplication::style()->drawPrimitive(QStyle::PE_IndicatorArrowRight, &option, painter);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, picture.rect(), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new ArrowIcon(*this); }
};

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

// Nothing lies between the darkest and the lightest colors: the user has asked for lines.
bool IsHighContrast(const QPalette& palette) {
    constexpr int kNearlyAll = 250;  // of 255
    const int window = palette.color(QPalette::Window).lightness();
    const int text = palette.color(QPalette::WindowText).lightness();
    return std::abs(window - text) >= kNearlyAll;
}

QColor OutlineOf(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    if (IsHighContrast(palette)) return text;
    return {(window.red() + text.red()) / 2, (window.green() + text.green()) / 2,
            (window.blue() + text.blue()) / 2};
}

void DrawOutline(const QStyleOption& option, bool round, QPainter& painter) {
    const QRectF line = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(OutlineOf(option.palette));
    painter.setBrush(Qt::NoBrush);
    if (round) {
        painter.drawEllipse(line);
    } else {
        painter.drawRect(line);
    }
    painter.restore();
}

// The groove, left and right of the handle, and the handle.
void DrawSlider(const QStyle& style, const QStyleOptionComplex& option, QPainter& painter,
                const QWidget* widget) {
    const auto place = [&](QStyle::SubControl part) {
        return style.subControlRect(QStyle::CC_Slider, &option, part, widget);
    };
    QStyleOption part = option;
    part.rect = place(QStyle::SC_SliderHandle);
    DrawOutline(part, false, painter);
    painter.save();
    painter.setClipRegion(QRegion(option.rect) - part.rect);
    part.rect = place(QStyle::SC_SliderGroove);
    DrawOutline(part, false, painter);
    painter.restore();
}

// Whether the style outlines it, though not so that it could be seen in high contrast.
bool IsFaint(QStyle::PrimitiveElement element) {
    switch (element) {
        case QStyle::PE_Frame:
        case QStyle::PE_FrameGroupBox:
        case QStyle::PE_FrameLineEdit:
        case QStyle::PE_FrameTabWidget:
        case QStyle::PE_PanelButtonCommand:
            return true;
        default:
            return false;
    }
}

}  // namespace

QIcon EditorStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    if (icon == SP_ToolBarHorizontalExtensionButton) return QIcon(new ArrowIcon);
    return QProxyStyle::standardIcon(icon, option, widget);
}

int EditorStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    // Of the height of a line: what the usual boxes have of the usual font.
    constexpr double kBoxShare = 0.8;
    const int own = QProxyStyle::pixelMetric(metric, option, widget);
    const bool box = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight ||
                     metric == PM_ExclusiveIndicatorWidth || metric == PM_ExclusiveIndicatorHeight;
    if (!box || (!option && !widget)) return own;
    const QFontMetrics letters = widget ? widget->fontMetrics() : option->fontMetrics;
    return std::max(own, static_cast<int>(letters.height() * kBoxShare));
}

void EditorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool round = element == PE_IndicatorRadioButton;
    const bool box = round || element == PE_IndicatorCheckBox;
    const bool contrast = IsHighContrast(option->palette);
    if (!(box && (contrast || IsDark(option->palette))) && !(IsFaint(element) && contrast)) return;
    // What has the keyboard shows it by an outline of the style's own.
    const State focus = box ? State_HasFocus | State_KeyboardFocusChange : State(State_HasFocus);
    if ((option->state & focus) == focus) return;
    DrawOutline(*option, round, *painter);
}

void EditorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (!IsHighContrast(option->palette)) return;
    if (control == CC_Slider) return DrawSlider(*this, *option, *painter, widget);
    if (control != CC_SpinBox && control != CC_ComboBox) return;
    if (!(option->state & State_HasFocus)) DrawOutline(*option, false, *painter);
}

}  // namespace kirto
