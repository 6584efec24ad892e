// Other people's codecs that the benchmarks compare with, in this process.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/types.h"
#include "indexed_animation.h"

namespace kirto::bench {

// What a decoder makes of a file: a canvas of its own for each frame, as a document keeps them, of
// width x height x 4 bytes: blue, green, red and one more.
struct Canvases {
    int32 width = 0;
    int32 height = 0;
    std::vector<std::unique_ptr<uint8[]>> canvases;

    // A canvas that shows what the one before shows; the first is zero.
    uint8* Add(bool shows_last);
    size_t BytesPerRow() const { return static_cast<size_t>(width) * 4; }
    size_t Bytes() const { return BytesPerRow() * static_cast<size_t>(height); }
};

// Nothing when the file can't be decoded. libavcodec takes FLC files.
std::optional<Canvases> DecodeWithGiflib(const std::vector<uint8>& gif);
std::optional<Canvases> DecodeWithLibavcodec(const std::vector<uint8>& flc);

// giflib's decoding and no more. Images are appended to *result, if any; without it a row is
// forgotten as soon as the next one is read. False when the file can't be decoded.
bool ReadWithGiflib(const std::vector<uint8>& gif, IndexedAnimation* result);

// False when the animation can't be encoded. cgif takes whole frames only.
bool WriteWithGiflib(const IndexedAnimation& animation, const std::string& path);
bool EncodeWithCgif(IndexedAnimation& animation, std::vector<uint8>* gif);

}  // namespace kirto::bench
