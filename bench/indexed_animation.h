// An animation as it stands in a GIF file, before compression.
#pragma once

#include <array>
#include <vector>

#include "base/types.h"

namespace kirto::bench {

struct IndexedImage {
    int32 left = 0;  // on the canvas, pixels
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;
    int32 transparent_index = -1;  // -1: none
    std::vector<uint8> indices;    // row after row
};

struct IndexedAnimation {
    int32 width = 0;  // of the canvas, pixels
    int32 height = 0;
    std::array<rgb_color, 256> colors{};
    std::vector<IndexedImage> images;
};

}  // namespace kirto::bench
