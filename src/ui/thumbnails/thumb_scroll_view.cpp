#include "ui/thumbnails/thumb_scroll_view.h"

#include <QScrollBar>
#include <QStyleOptionSlider>
#include <algorithm>

namespace kirto {

namespace {

// A bar whose large step is not what its handle shows: that is how much of the content is visible.
class ProportionalBar : public QScrollBar {
  public:
    explicit ProportionalBar(const QWidget* view) : QScrollBar(Qt::Vertical), view_(view) {}

  protected:
    void initStyleOption(QStyleOptionSlider* option) const override {
        QScrollBar::initStyleOption(option);
        option->pageStep = view_->height();
    }

  private:
    const QWidget* view_;
};

}  // namespace

ThumbScrollView::ThumbScrollView(QWidget* parent) : QAbstractScrollArea(parent) {
    setObjectName("ScrollView");
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBar(new ProportionalBar(viewport()));
    verticalScrollBar()->setSingleStep(kSmallStep);
    verticalScrollBar()->setPageStep(kLargeStep);
    verticalScrollBar()->setRange(0, 0);
    viewport()->setBackgroundRole(QPalette::Base);
}

void ThumbScrollView::SetContent(QWidget* content) {
    content_ = content;
    Arrange();
}

void ThumbScrollView::SetContentHeight(int32 height) {
    if (height == content_height_) return;
    content_height_ = height;
    // A bar that came and went as the content fits would change the width, and with it how many
    // rows there are. Nothing at all has no rows.
    setVerticalScrollBarPolicy(height > 0 ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
    Arrange();
}

void ThumbScrollView::ScrollTo(int32 row) {
    verticalScrollBar()->setValue(row);
}

int32 ThumbScrollView::Top() const {
    return verticalScrollBar()->value();
}

void ThumbScrollView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    Arrange();
}

void ThumbScrollView::scrollContentsBy(int, int) {
    if (content_) content_->move(0, -Top());
}

void ThumbScrollView::Arrange() {
    if (!content_) return;
    const int visible = viewport()->height();
    verticalScrollBar()->setRange(0, std::max(0, content_height_ - visible));
    content_->setGeometry(0, -Top(), viewport()->width(), std::max(visible, content_height_));
}

}  // namespace kirto
