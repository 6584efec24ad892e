#pragma once

#include <QProxyStyle>

namespace kirto {

// The desktop's style, but for two things. The arrow of a menu bar that is too narrow is drawn: the
// desktop's styles read it from a picture, and for the first picture the toolkit opens each image
// plugin there is, which takes a third of the time until the window stands there. And in dark
// colors boxes to tick have an outline that is lighter than the window: a darker one can't be seen
// there. GUI thread.
class EditorStyle : public QProxyStyle {
  public:
    // base: the style's name, as QStyle::name has it.
    explicit EditorStyle(const QString& base) : QProxyStyle(base) {}

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace kirto
