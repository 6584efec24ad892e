#pragma once

#include <QProxyStyle>

namespace kirto {

// The desktop's style, with four exceptions. The arrow of a menu bar that is too narrow is drawn:
// the desktop's styles read it from a picture, and for the first picture the toolkit opens each
// image plugin there is, which takes a third of the startup time. Check boxes and radio buttons are
// as large as the letters beside them. In dark colors they have an outline that is lighter than the
// window, since a darker one is invisible there. And in colors of high contrast, whatever has an
// outline has one in the color of texts. GUI thread.
class EditorStyle : public QProxyStyle {
  public:
    // base: the style's name, as QStyle::name has it.
    explicit EditorStyle(const QString& base) : QProxyStyle(base) {}

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

}  // namespace kirto
