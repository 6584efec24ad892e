// What is left of an animation before it is written somewhere else.
#pragma once

#include <memory>
#include <optional>

#include "animation/animation.h"
#include "base/pixel_budget.h"
#include "base/types.h"
#include "base/work.h"

namespace kirto {

// Every n-th frame, from the first on, each shown for as long as it and those left out behind it.
// every: 1 or more.
Animation EveryNthFrame(const Animation& animation, int32 every);

// The animation scaled, several pictures at a time. percent: above 0; the sides become 1 pixel at
// least. budget: counts the pictures. Nothing when the work was stopped, memory is short, or a side
// would have more than kMostPixelsOfASide.
std::optional<Animation> Scaled(const Animation& animation, int32 percent,
                                const std::shared_ptr<PixelBudget>& budget, Work& work);

}  // namespace kirto
