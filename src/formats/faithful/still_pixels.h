#pragma once

#include <memory>
#include <optional>

#include "animation/animation.h"
#include "base/pixel_budget.h"
#include "base/work.h"
#include "color/adaptive/alpha_matte.h"

namespace kirto {

// The animation with pixels that stay what they were in the frame before where that is near enough
// to what they are to be: what stands still need not be drawn again. Each frame becomes as large as
// the canvas, which has a pixel at least. tolerance: the largest square distance of colors that is
// near. budget: counts the pictures. Nothing when the work was stopped or memory is short; may
// throw std::bad_alloc.
std::optional<Animation> WithStillPixels(const Animation& animation, const AlphaMatte& matte,
                                         int64 tolerance,
                                         const std::shared_ptr<PixelBudget>& budget,
                                         const Work& work);

}  // namespace kirto
