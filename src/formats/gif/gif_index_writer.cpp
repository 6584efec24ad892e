#include "formats/gif/gif_index_writer.h"

#include <algorithm>
#include <cstring>

namespace kirto {

GifIndexWriter::GifIndexWriter(uint8* indices, int32 width, int32 height, bool interlaced)
    : indices_(indices),
      width_(width),
      height_(height),
      interlaced_(interlaced),
      // An image without columns takes no indices, however many its data delivers.
      rows_(width > 0 ? height : 0, interlaced) {}

void GifIndexWriter::Write(const uint8* indices, size_t count) {
    while (count > 0 && !rows_.Done()) {
        const size_t run = std::min(count, static_cast<size_t>(width_ - column_));
        const size_t row = static_cast<size_t>(rows_.Row()) * static_cast<size_t>(width_);
        std::memcpy(indices_ + row + static_cast<size_t>(column_), indices, run);
        indices += run;
        count -= run;
        column_ += static_cast<int32>(run);
        if (column_ == width_) {
            column_ = 0;
            rows_.Next();
        }
    }
}

std::vector<int32> GifIndexWriter::RowLengths() const {
    if (Full()) return {};
    std::vector<int32> lengths(static_cast<size_t>(height_), 0);
    GifRowOrder rows(height_, interlaced_);
    for (; rows.Row() != rows_.Row(); rows.Next())
        lengths[static_cast<size_t>(rows.Row())] = width_;
    lengths[static_cast<size_t>(rows.Row())] = column_;
    return lengths;
}

}  // namespace kirto
