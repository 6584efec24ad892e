// Other people's codecs that the benchmarks compare with, where they were found at build time.
#pragma once

#include <functional>
#include <vector>

#include "animations.h"
#include "base/types.h"

namespace kirto::bench {

// Called with each canvas in order: rows of 4 x width bytes, blue, green, red and one more.
using CanvasVisitor = std::function<void(const uint8* first_row, size_t bytes_per_row)>;

struct Peer {
    const char* name;
    // Decodes every frame of a GIF to a 32-bit canvas of its own, as a document keeps them, and
    // then shows them to the visitor. False when the file can't be decoded.
    bool (*decode)(const std::vector<uint8>& gif, const CanvasVisitor& visit);
    // Encodes the animation's images and returns their bytes; nothing when it can't.
    std::vector<uint8> (*encode)(BenchAnimation& animation);
    bool writes_files;      // what encode returns is a GIF file, not only its images
    bool takes_any_images;  // encodes images smaller than the canvas
};

std::vector<Peer> Peers();

bool DecodeWithGiflib(const std::vector<uint8>& gif, const CanvasVisitor& visit);
std::vector<uint8> EncodeWithGiflib(BenchAnimation& animation);

bool DecodeWithLibavcodec(const std::vector<uint8>& gif, const CanvasVisitor& visit);
std::vector<uint8> EncodeWithLibavcodec(BenchAnimation& animation);

}  // namespace kirto::bench
