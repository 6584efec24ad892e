#include "ui/shell/editor_style.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyleOption>
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

}  // namespace

QIcon EditorStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                const QWidget* widget) const {
    if (icon == SP_ToolBarHorizontalExtensionButton) return QIcon(new ArrowIcon);
    return QProxyStyle::standardIcon(icon, option, widget);
}

void EditorStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool round = element == PE_IndicatorRadioButton;
    const bool box = round || element == PE_IndicatorCheckBox;
    const bool field = element == PE_FrameLineEdit || element == PE_Frame;
    const bool contrast = IsHighContrast(option->palette);
    if (!(box && (contrast || IsDark(option->palette))) && !(field && contrast)) return;
    // What has the keyboard shows it by an outline of the style's own.
    const State focus = box ? State_HasFocus | State_KeyboardFocusChange : State(State_HasFocus);
    if ((option->state & focus) == focus) return;
    DrawOutline(*option, round, *painter);
}

void EditorStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control != CC_SpinBox && control != CC_ComboBox) return;
    if (!IsHighContrast(option->palette) || (option->state & State_HasFocus)) return;
    DrawOutline(*option, false, *painter);
}

}  // namespace kirto
