#include "color/pixel_table.h"

#include <algorithm>
#include <cstring>

namespace kirto {

uint32 PixelOf(rgb_color color) {
    const uint8 bytes[4] = {color.blue, color.green, color.red, color.alpha};
    uint32 pixel = 0;
    std::memcpy(&pixel, bytes, sizeof(pixel));
    return pixel;
}

PixelTable PixelTableOf(const ColorTable& colors) {
    PixelTable table;
    std::transform(colors.begin(), colors.end(), table.pixels.begin(), PixelOf);
    return table;
}

}  // namespace kirto
