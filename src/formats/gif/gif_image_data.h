#pragma once

#include <vector>

#include "base/types.h"
#include "kit/watched_input.h"

namespace kirto {

// The codes of a GIF image as they stand in the file.
struct GifImageData {
    std::vector<uint8> bytes;  // of all data sub-blocks, joined
    bool complete = false;     // false: the file ended before the last one
    bool too_large = false;    // there are more bytes than allowed, and not all were read
    int64 position = 0;        // in the file

    // Reads them from the first sub-block to the terminator. largest: bytes allowed. keep_rest:
    // what there is of a sub-block that the file ends in counts.
    void Read(WatchedInput& input, uint64 largest, bool keep_rest = false);
};

}  // namespace kirto
