#pragma once

#include <span>
#include <vector>

#include "base/types.h"
#include "kit/rect.h"

namespace kirto {

// Views that stand beside each other in their parent.
struct ViewRow {
    std::vector<size_t> views;  // indices, from left to right
    bool apart = false;         // clearly more space above than between the other rows
    bool indented = false;      // begins to the right of where most rows begin
    bool at_right = false;      // belongs to the parent's right edge
};

// How frames are meant: which views stand in one row, from top to bottom, and where the row stands.
// width: of the parent the frames lie in. What matters is how the frames lie to each other, not how
// large they are.
std::vector<ViewRow> RowsOf(std::span<const BRect> frames, float width);

// True for a frame that reaches across to the parent's right margin, which is taken to be not much
// wider than the left one.
bool ReachesRightMargin(const BRect& frame, std::span<const BRect> frames, float width);

}  // namespace kirto
