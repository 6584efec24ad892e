#pragma once

#include <QLabel>
#include <vector>

#include "kit/rect.h"

namespace kirto {

// A view and where the layout has it in its parent. The label, where there is one, stands at its
// left.
struct PlacedView {
    BRect frame;
    QWidget* view;
    QLabel* label;
};

// Gives the parent a layout of the views, which are its children. The frames, in a parent of this
// width, decide what stands beside and below what; the views themselves decide how much room they
// get, so nothing is cut in any font. width: in the same units as the frames. GUI thread.
void ArrangeViews(QWidget& parent, const std::vector<PlacedView>& views, float width);

}  // namespace kirto
