#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/allocation.h"
#include "base/types.h"
#include "base/work.h"
#include "formats/gif/gif_parser.h"
#include "picture/index_counts.h"

namespace kirto {

// The palette indices of a GIF image, decoded.
struct GifIndices {
    AllocatedArray<uint8> indices;   // row by row, one a pixel
    size_t room = 0;                 // there is for indices
    std::vector<int32> row_lengths;  // so many of each row are there; empty: all of them
    bool complete = false;           // false: the data is damaged, or the work was stopped
    std::string lines;               // that decoding would have printed
    // Of the rows of each strip that a picture of the image has, where they have been counted.
    std::vector<IndexCounts> counts;

    // Makes room for the image. False when memory is short.
    bool Reserve(const GifImage& image);
    // Decodes the image into the room that was made. The work is told how far this is in a file of
    // that size; nothing with 0, as it must be on other threads than the one that works.
    void Decode(const GifImage& image, int32 min_code_size, Work& work, int64 file_size);
    // Counts the indices if the image was decoded, and has all of them. before: those of an image
    // of the same size, which may tell most of the counts; or null.
    void Count(const GifImage& image, const GifIndices* before);
};

// The code size that image data with that first byte is read with, for a palette of so many bits;
// nothing where it can't be. A size above the palette's depth is allowed, one below it is not:
// deliberately lopsided. A size of 1 always counts as 2.
std::optional<int32> GifCodeSizeOf(uint8 size, int32 palette_bits);

}  // namespace kirto
