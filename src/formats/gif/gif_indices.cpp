#include "formats/gif/gif_indices.h"

#include <algorithm>
#include <memory>
#include <span>

#include "base/debug_line.h"
#include "formats/gif/gif_index_writer.h"
#include "formats/gif/gif_lzw_decoder.h"
#include "picture/strip.h"

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
    counts.clear();
}

void GifIndices::Count(const GifImage& image, const GifIndices* before) {
    if (!complete || !row_lengths.empty()) return;
    const int32 step = Strip::RowsFor(image.width);
    counts.resize(static_cast<size_t>((image.height + step - 1) / step));
    const size_t size = static_cast<size_t>(image.width) * static_cast<size_t>(image.height);
    const size_t strip_size = static_cast<size_t>(image.width) * static_cast<size_t>(step);
    const bool may_differ = before && before->counts.size() == counts.size();
    size_t begin = 0;
    for (size_t i = 0; i < counts.size(); ++i, begin += strip_size) {
        const size_t part = std::min(strip_size, size - begin);
        const std::span<const uint8> strip{indices.get() + begin, part};
        if (may_differ && AreMostlySame({before->indices.get() + begin, part}, strip)) {
            counts[i] = before->counts[i];
            counts[i].Change({before->indices.get() + begin, part}, strip);
        } else {
            counts[i] = {};
            counts[i].Add(strip);
        }
    }
}

std::optional<int32> GifCodeSizeOf(uint8 size, int32 palette_bits) {
    const int32 actual = size == 1 ? 2 : size;
    if (actual < std::max(palette_bits, 2) || actual > GifLzwDecoder::kMaxMinCodeSize)
        return std::nullopt;
    return actual;
}

}  // namespace kirto
