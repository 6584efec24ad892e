#pragma once

#include <QColor>
#include <QWidget>
#include <functional>
#include <vector>

#include "base/types.h"

namespace kirto {

// The colors of a palette as a grid of squares, of which two may be marked: "B" is the background,
// "T" the transparent color. The pointer or the arrow keys find out what a color is, a click or the
// Enter key chooses it. Screen readers find each of them. Colors are told apart by their index in
// the palette, in whatever order they stand. GUI thread.
class SwatchGrid : public QWidget {
  public:
    static constexpr int kColumns = 16;

    struct Swatch {
        QColor color;
        int64 pixels = 0;  // that have it
    };
    struct Marks {
        int background = -1;  // -1: none
        int transparent = -1;
    };
    enum class Order { kIndex, kHue, kUse };

    explicit SwatchGrid(QWidget* parent = nullptr);

    // In the order of the palette, 256 at most.
    void SetSwatches(std::vector<Swatch> swatches, Marks marks);
    void SetOrder(Order order);
    int Count() const { return static_cast<int>(swatches_.size()); }

    // The color at a place of the grid, from 0 to Count() - 1, and where a color is. In the
    // widget's coordinates; empty outside the palette, or -1.
    int IndexOf(int place) const { return order_[static_cast<size_t>(place)]; }
    int PlaceOf(int index) const;
    QRect AreaOf(int index) const;
    int IndexAt(QPoint point) const;
    // "Color 17, #aabbcc, 123 pixels, background"; empty outside the palette.
    QString NameOf(int index) const;

    // The color below the pointer, else the one that has the keyboard; -1 without colors.
    int Told() const { return pointed_ >= 0 ? pointed_ : current_; }
    int Current() const { return current_; }
    void SetCurrent(int index);
    void Choose(int index);
    // Called when another color is told, and when the user chooses one.
    void WhenTold(std::function<void()> told) { told_ = std::move(told); }
    void WhenChosen(std::function<void(int index)> chosen) { chosen_ = std::move(chosen); }

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    int Side() const;
    int Rows() const { return (Count() + kColumns - 1) / kColumns; }
    void Arrange();
    void Point(int index);
    void Tell() const;

    std::vector<Swatch> swatches_;
    Marks marks_;
    Order sorted_ = Order::kIndex;
    std::vector<int> order_;   // the color of each place
    std::vector<int> places_;  // of each color
    int current_ = -1;
    int pointed_ = -1;
    std::function<void()> told_;
    std::function<void(int)> chosen_;
};

}  // namespace kirto
