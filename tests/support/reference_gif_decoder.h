// A GIF decoder for comparison: plain, slow, and written without looking at the product's. It reads
// sound files; at the first thing that it does not know it stops.
#pragma once

#include <cstddef>
#include <vector>

#include "base/types.h"

namespace kirto::test {

struct ReferencePixels {
    bool success = false;         // ended with the end code or a zero-length sub-block
    std::vector<uint8> indices;   // all that the data delivers, in its order, cut to 8 bits
    std::vector<uint8> leftover;  // what follows the image's data
};

// Decodes data sub-blocks of LZW codes. min_code_size: 2 to 11.
ReferencePixels DecodeReferenceLzw(const std::vector<uint8>& data, int32 min_code_size);

struct ReferenceImage {
    int32 x = 0;
    int32 y = 0;
    int32 width = 0;
    int32 height = 0;
    bool interlaced = false;
    bool has_local_table = false;
    std::vector<uint32> table;  // 0xRRGGBB, local or else global; empty: none
    int32 disposal = 0;         // of its own control block
    int32 delay = 0;            // hundredths of a second
    int32 transparent = -1;     // of its own control block; -1: none
    int32 code_size = 0;        // the byte; 1 is decoded as 2
    // One a pixel, row by row from the top; -1 where the data delivered none.
    std::vector<int32> indices;
};

struct ReferenceGif {
    int32 width = 0;
    int32 height = 0;
    std::vector<uint32> table;           // 0xRRGGBB; empty: none
    std::vector<ReferenceImage> images;  // those before the end or the first fault
    bool complete = false;               // the trailer was reached
};

ReferenceGif DecodeReferenceGif(const std::vector<uint8>& bytes);

}  // namespace kirto::test
