#include "formats/gif/gif_image_data.h"

#include <algorithm>
#include <array>

namespace kirto {

// Many sub-blocks are read at once, and what lies behind the last one is given back: they are
// small, and each read asks whether the work is to stop.
void GifImageData::Read(WatchedInput& input, uint64 largest, bool keep_rest) {
    bytes.clear();
    complete = false;
    too_large = false;
    position = input.Position();
    std::array<uint8, 4096> chunk;
    size_t start = 0;  // of the sub-block, in bytes
    size_t left = 0;   // of it; 0: its size comes next
    while (const size_t count = input.ReadUpTo(chunk.data(), chunk.size())) {
        const uint8* next = chunk.data();
        const uint8* const end = next + count;
        while (next != end) {
            if (left > 0) {
                const size_t step = std::min(left, static_cast<size_t>(end - next));
                bytes.insert(bytes.end(), next, next + step);
                next += step;
                left -= step;
                continue;
            }
            start = bytes.size();
            left = *next++;
            complete = left == 0;
            too_large = start + left > largest;
            if (!complete && !too_large) continue;
            input.Skip(next - end);
            return;
        }
    }
    if (left > 0 && !keep_rest) bytes.resize(start);
}

}  // namespace kirto
