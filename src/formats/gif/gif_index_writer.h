#pragma once

#include <vector>

#include "base/types.h"
#include "formats/gif/gif_row_order.h"

namespace kirto {

// Puts a stream of palette indices into an image, row after row in the image's row order. Indices
// past the last row are dropped.
class GifIndexWriter {
  public:
    // indices: room for width of them in each of height rows; outlives the writer.
    GifIndexWriter(uint8* indices, int32 width, int32 height, bool interlaced);

    void Write(const uint8* indices, size_t count);
    // True once every row is written: whatever comes is dropped.
    bool Full() const { return rows_.Done(); }
    // So many indices of each row were written; empty when all of them were.
    std::vector<int32> RowLengths() const;

  private:
    uint8* const indices_;
    const int32 width_;
    const int32 height_;
    const bool interlaced_;
    GifRowOrder rows_;
    int32 column_ = 0;
};

}  // namespace kirto
