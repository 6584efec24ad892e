#pragma once

#include "base/types.h"

namespace kirto {

// What becomes of an image's rectangle before the next image of an animation is drawn; numbered as
// in GIF files.
enum class Disposal : uint8 {
    kNone,        // it stays
    kKeep,        // the same
    kBackground,  // it becomes transparent
    kPrevious     // it becomes what it was before the image
};

}  // namespace kirto
