#include "formats/gif/gif_image_data.h"

#include <algorithm>

namespace kirto {

void GifImageData::Read(WatchedInput& input, uint64 largest, bool keep_rest) {
    bytes.clear();
    complete = false;
    too_large = false;
    position = input.Position();
    uint8 size = 0;
    while (input.Read(&size, 1)) {
        complete = size == 0;
        too_large = bytes.size() + size > largest;
        if (complete || too_large || !ReadSubBlock(input, size, keep_rest)) return;
    }
}

// False when the file ends in the sub-block.
bool GifImageData::ReadSubBlock(WatchedInput& input, size_t size, bool keep_rest) {
    const size_t start = bytes.size();
    const int64 left = std::max(input.Size() - input.Position(), int64{0});
    const size_t there = keep_rest ? std::min(size, static_cast<size_t>(left)) : size;
    bytes.resize(start + there);
    if (input.Read(bytes.data() + start, there)) return there == size;
    bytes.resize(start);
    return false;
}

}  // namespace kirto
