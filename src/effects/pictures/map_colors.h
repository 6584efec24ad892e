#pragma once

#include <memory>

#include "base/pixel_budget.h"
#include "base/work.h"
#include "effects/pictures/pixel_order.h"
#include "picture/picture.h"

namespace kirto {

// What becomes of a color, wherever it is. Constant; used by several threads.
class ColorMap {
  public:
    virtual ~ColorMap() = default;
    virtual ColorBytes Of(ColorBytes color) const = 0;
};

// The picture with each pixel mapped. Strips of few colors keep their indices, in the same memory.
// Pixels without alpha stay as they are. A pure function, on any thread. Null when the picture has
// no rows, memory is short or the work was stopped.
std::shared_ptr<const Picture> MapColors(const Picture& picture, const ColorMap& map,
                                         const std::shared_ptr<PixelBudget>& budget,
                                         const Work& work);

}  // namespace kirto
