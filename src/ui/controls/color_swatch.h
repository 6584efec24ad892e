#pragma once

#include <QColor>
#include <QWidget>
#include <functional>

namespace kirto {

// Shows a color that its owner provides; asks for it at each paint event. GUI thread.
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
