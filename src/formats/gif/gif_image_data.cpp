#include "formats/gif/gif_image_data.h"

namespace kirto {

void GifImageData::Read(WatchedInput& input, uint64 largest) {
    bytes.clear();
    complete = false;
    too_large = false;
    position = input.Position();
    uint8 size = 0;
    while (input.Read(&size, 1)) {
        const size_t start = bytes.size();
        complete = size == 0;
        too_large = start + size > largest;
        if (complete || too_large) return;
        bytes.resize(start + size);
        if (input.Read(bytes.data() + start, size)) continue;
        bytes.resize(start);
        return;
    }
}

}  // namespace kirto
