#include "canvas_digest.h"

namespace kirto::bench {

void CanvasDigest::AddRow(const uint8* pixels, int32 width) {
    for (const uint8* end = pixels + static_cast<size_t>(width) * 4; pixels < end; pixels += 4) {
        const uint32 color = pixels[2] << 16 | pixels[1] << 8 | pixels[0];
        value_ = (value_ ^ color) * 0x100000001B3U;
    }
}

}  // namespace kirto::bench
