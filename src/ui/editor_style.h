#pragma once

#include <QProxyStyle>

namespace kirto {

// The desktop's style, but for the arrow of a menu bar that is too narrow: that one is drawn. The
// desktop's styles read it from a picture, and for the first picture the toolkit opens each image
// plugin there is, which took a third of the time until the window stood there. GUI thread.
class EditorStyle : public QProxyStyle {
  public:
    // base: the style's name, as QStyle::name has it.
    explicit EditorStyle(const QString& base) : QProxyStyle(base) {}

    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};

}  // namespace kirto
