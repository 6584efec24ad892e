#pragma once

#include <QColor>
#include <QWidget>
#include <functional>

namespace kirto {

// Shows a colour that somebody else holds; asks for it each time it is painted. GUI thread.
class ColorSwatch : public QWidget {
  public:
    ColorSwatch(const char* name, std::function<QColor()> color, QWidget* parent);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::function<QColor()> color_;
};

}  // namespace kirto
