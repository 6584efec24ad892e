#pragma once

#include <QAbstractScrollArea>

#include "base/types.h"

namespace kirto {

// Shows a strip of a high widget, with a vertical scroll bar only. Its range follows the content at
// once, also while nothing is on the screen. GUI thread.
class ThumbScrollView : public QAbstractScrollArea {
  public:
    static constexpr int kSmallStep = 8;
    static constexpr int kLargeStep = 64;

    explicit ThumbScrollView(QWidget* parent = nullptr);

    // The widget to show, a child of viewport(): it is as wide as the viewport, and at least as
    // high.
    void SetContent(QWidget* content);
    // How high the content has to be, pixels.
    void SetContentHeight(int32 height);
    // The last row of pixels that is visible, counted from the first.
    int32 ViewHeight() const { return viewport()->height() - 1; }
    // Moves the content so that row stands at the top, as near as the range allows.
    void ScrollTo(int32 row);
    // The row at the top.
    int32 Top() const;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    void Arrange();

    QWidget* content_ = nullptr;
    int32 content_height_ = 0;
};

}  // namespace kirto
