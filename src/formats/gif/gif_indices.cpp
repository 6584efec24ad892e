#include "formats/gif/gif_indices.h"

#include <algorithm>
#include <memory>

#include "base/debug_line.h"
#include "formats/gif/gif_index_writer.h"
#include "formats/gif/gif_lzw_decoder.h"

namespace kirto {

bool GifIndices::Reserve(const GifImage& image) {
    const size_t size = static_cast<size_t>(image.width) * static_cast<size_t>(image.height);
    if (size <= room) return true;
    room = 0;
    indices = AllocateArray<uint8>(size);
    if (indices) room = size;
    return room > 0;
}

void GifIndices::Decode(const GifImage& image, int32 min_code_size, Work& work, int64 file_size) {
    DebugLineCapture printed;
    GifIndexWriter writer(indices.get(), image.width, image.height, image.interlaced);
    // It is large: a worker's stack may be small.
    const auto decoder = std::make_unique<GifLzwDecoder>(image.data, min_code_size);
    complete = decoder->Decode(writer, work, file_size);
    row_lengths = writer.RowLengths();
    lines = printed.Take();
}

std::optional<int32> GifCodeSizeOf(uint8 size, int32 palette_bits) {
    const int32 actual = size == 1 ? 2 : size;
    if (actual < std::max(palette_bits, 2) || actual > GifLzwDecoder::kMaxMinCodeSize)
        return std::nullopt;
    return actual;
}

}  // namespace kirto
