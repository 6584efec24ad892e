// Pictures made at random, beside what they are to show.
#pragma once

#include <memory>
#include <random>
#include <vector>

#include "picture/picture.h"

namespace kirto::test {

// The pixels of a picture, row by row, as they lie in memory.
struct PlainPicture {
    int32 width = 0;
    int32 height = 0;
    std::vector<uint32> pixels;

    uint32& At(int32 x, int32 y) {
        return pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
    }
};

// A number from 0 to less than the limit.
int32 RandomBelow(int32 limit, std::mt19937& random);

// All pixels of the picture.
PlainPicture PlainOf(const Picture& picture);

// Rows of so many different pixels at random, in runs.
PlainPicture RandomPicture(int32 width, int32 height, int32 colors, std::mt19937& random);

// The same as a picture, made row by row.
std::shared_ptr<const Picture> Built(const PlainPicture& plain,
                                     std::shared_ptr<const Picture> earlier = nullptr);

}  // namespace kirto::test
