// Takes written GIF files apart, so that tests can look at one field at a time.
#pragma once

#include <string>
#include <vector>

#include "base/types.h"

namespace kirto::test {

// One image with the graphic control block before it, every part as its bytes.
struct GifImageParts {
    std::vector<uint8> control;     // 8
    std::vector<uint8> descriptor;  // 10
    std::vector<uint8> table;
    int32 code_size = 0;
    std::vector<size_t> block_sizes;  // of the data sub-blocks, without the terminator
    std::vector<uint8> data;          // of all sub-blocks

    // Code size byte, data sub-blocks and terminator, as in the file.
    std::vector<uint8> image_data;
};

struct GifParts {
    std::vector<uint8> header;  // 13
    std::vector<uint8> table;
    std::vector<uint8> loop;  // whole blocks; empty: there is none
    std::vector<uint8> comment;
    std::vector<GifImageParts> images;
    bool complete = false;  // the trailer is the file's last byte
};

// Of a file in the order header, table, loop, comment, images, trailer; anything else leaves
// complete false.
GifParts TakeApart(const std::vector<uint8>& file);

// The codes in image data, with the sizes in bits that a decoder reads them at, up to the end code.
struct SizedCode {
    int32 code = 0;
    int32 size = 0;
};
std::vector<SizedCode> CodesOf(const std::vector<uint8>& data, int32 min_code_size);

}  // namespace kirto::test
