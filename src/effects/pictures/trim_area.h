// The parts of a canvas that are worth keeping.
#pragma once

#include "animation/animation.h"
#include "base/work.h"
#include "effects/pictures/cut_picture.h"

namespace kirto {

// The smallest part of the canvas outside of which all frames are transparent; empty where they
// are everywhere. Both work on the application's thread, tell how far they are and end early, with
// whatever they have, when the work is stopped.
PlaneRect VisibleArea(const Animation& animation, Work& work);

// The smallest part of the canvas outside of which all frames show the same, each alone on the
// transparent canvas; empty where they do everywhere. What a transparent pixel would show does not
// count.
PlaneRect ChangedArea(const Animation& animation, Work& work);

}  // namespace kirto
