#pragma once

#include "base/types.h"

namespace kirto {

// Pixels of a picture, some of which may lie right of it or below.
struct PixelRect {
    int32 left = 0;  // 0 or more, as top
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;

    bool operator==(const PixelRect&) const = default;
};

}  // namespace kirto
