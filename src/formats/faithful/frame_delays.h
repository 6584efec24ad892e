#pragma once

#include <vector>

#include "animation/animation.h"
#include "base/types.h"

namespace kirto {

// How long each frame of the animation is shown, in the hundredths of a second that a GIF file has.
// Pauses in between are spread: each frame appears at most half a hundredth early or late, and the
// whole takes as long as it is to take. A pause of 0 stays 0. Pauses that a file has no room for
// become the longest it has. in_seconds: the unit of the animation's pauses, else hundredths.
std::vector<uint16> SpreadDelays(const Animation& animation, bool in_seconds);

}  // namespace kirto
