#include "ui/controls/folding_row.h"

#include <algorithm>

namespace kirto {

FoldingRow::FoldingRow(QLayout* first, QLayout* second, QWidget* parent)
    : QWidget(parent),
      layout_(new QBoxLayout(QBoxLayout::LeftToRight, this)),
      first_(first),
      second_(second) {
    layout_->setContentsMargins(0, 0, 0, 0);
    // The row's minimum is that of its folded form, whichever it has now.
    layout_->setSizeConstraint(QLayout::SetNoConstraint);
    layout_->addLayout(first, 1);
    layout_->addLayout(second);
}

int FoldingRow::WholeWidth() const {
    return first_->minimumSize().width() + layout_->spacing() + second_->minimumSize().width();
}

QSize FoldingRow::minimumSizeHint() const {
    const int width = std::max(first_->minimumSize().width(), second_->minimumSize().width());
    return {width, layout_->totalMinimumSize().height()};
}

void FoldingRow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    const bool fold = width() < WholeWidth();
    if (fold == IsFolded()) return;
    layout_->setDirection(fold ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    updateGeometry();
}

}  // namespace kirto
