// What image files say of themselves in their first bytes, read before any decoder sees them.
#pragma once

#include "kit/file.h"

namespace kirto {

struct ImageHeader {
    const char* format = "";  // as Qt calls it; empty: no format that is known by its first bytes
    uint64 width = 0;         // pixels; 0: the header does not tell
    uint64 height = 0;
    // What the format's decoders keep in memory beside the picture, at most.
    uint64 working_bytes = 0;

    // Pixels of the picture; kMostPixels when they are more.
    uint64 Pixels() const;
    static constexpr uint64 kMostPixels = uint64{1} << 56;
};

// Recognizes the file by its content. Returns no format when it is not one of those that are read,
// or damaged where it tells its size. The file's position is lost.
ImageHeader ReadImageHeader(BFile& source);

}  // namespace kirto
