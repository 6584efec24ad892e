// Whether two animations are alike though they share nothing: equal fields, palettes and pixels.
#pragma once

#include <gtest/gtest.h>

#include "animation/animation.h"

namespace kirto::test {

// The same size, color space and bytes.
bool SamePicture(const Picture& a, const Picture& b);

// Everything but the ids of the frames. A failure says what differs.
testing::AssertionResult SameAnimation(const Animation& a, const Animation& b);

}  // namespace kirto::test
