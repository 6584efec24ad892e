#pragma once

#include <QIconEngine>

namespace kirto {

// An icon that is drawn in the desktop's color of buttons' texts, in any size. It asks for the
// color whenever it is painted, so that it follows the desktop from light to dark. Owned by its
// QIcon. GUI thread.
class PaintedIcon : public QIconEngine {
  public:
    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;

  protected:
    // Draws are made in a square of so many units a side.
    explicit PaintedIcon(int side) : side_(side) {}

    virtual void Draw(QPainter& painter, const QColor& color) const = 0;

  private:
    const int side_;
};

}  // namespace kirto
