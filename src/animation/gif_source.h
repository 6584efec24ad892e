#pragma once

#include <memory>
#include <vector>

#include "base/types.h"
#include "picture/disposal.h"
#include "picture/picture.h"
#include "picture/pixel_rect.h"
#include "picture/pixel_storage.h"

namespace kirto {

// How a frame stood in the GIF file that it was read from, so that it can be written again as it
// was. Never changes; shared by the frame and its copies. As long as the frame has the picture, and
// stands behind the frame of `previous` in the same state or is the first as it was, these bytes
// still draw it.
struct GifSource {
    PixelRect rect;  // of the image on the screen
    Disposal disposal = Disposal::kNone;
    int32 transparent_index = -1;  // -1: none
    bool interlaced = false;
    bool local_table = false;
    // Its table, or the file's; null where there is neither.
    std::shared_ptr<const std::vector<rgb_color>> table;
    uint8 min_code_size = 0;
    std::shared_ptr<const PixelStorage> codes;  // of all data sub-blocks, joined
    size_t codes_size = 0;                      // bytes
    std::weak_ptr<const Picture> picture;       // what the frame showed
    std::weak_ptr<const GifSource> previous;    // of the image before; empty for the first
};

}  // namespace kirto
