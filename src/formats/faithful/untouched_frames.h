#pragma once

#include <vector>

#include "animation/animation.h"

namespace kirto {

// For each frame whether the bytes that it was read from draw it still: its picture and its place
// are what they were, and the frames before it are the same as in its file, all the way from the
// first.
std::vector<bool> UntouchedFrames(const Animation& animation);

}  // namespace kirto
