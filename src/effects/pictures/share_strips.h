#pragma once

#include <memory>

#include "base/pixel_budget.h"
#include "picture/picture.h"

namespace kirto {

// The picture with strips of the other one wherever these have the same rows in the same place, so
// that pictures that are made one by one share what they have in common. The picture itself where
// there are none. Null when the budget refuses it.
std::shared_ptr<const Picture> ShareStrips(std::shared_ptr<const Picture> picture,
                                           const Picture& other,
                                           const std::shared_ptr<PixelBudget>& budget);

}  // namespace kirto
