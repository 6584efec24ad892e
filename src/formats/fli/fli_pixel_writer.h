#pragma once

#include <span>
#include <vector>

#include "base/types.h"
#include "color/palette.h"
#include "kit/bitmap.h"
#include "picture/strip.h"

namespace kirto {

// Draws palette indices into a picture at a position that runs through it row after row. A run that
// passes the end of a row goes on in the next one: that is how the data of some writers is meant,
// and pictures must stay what they are. What passes the last row is dropped.
class FliPixelWriter {
  public:
    // The bitmap is B_RGB32 with bits; in changed_rows, an entry a row, those that are drawn into
    // are set. Both outlive the writer; the palette's colors are taken as they are now.
    FliPixelWriter(BBitmap& bitmap, const Palette& palette, std::vector<bool>& changed_rows);

    // To the start of row y, 0 or more; rows below the picture take no pixels.
    void MoveToRow(int64 y);
    // Leaves the next pixels as they are.
    void Skip(int64 count);
    // One pixel per index.
    void Copy(std::span<const uint8> indices);
    // The index, count times.
    void Repeat(uint8 index, int32 count);
    // The two indices, count times.
    void RepeatPair(uint8 first, uint8 second, int32 count);

  private:
    // Moves on by count pixels and returns the bytes of those that lie within the picture.
    std::span<uint8> Take(int64 count);
    void MarkRows(int64 start, int64 end);

    uint8* bits_;
    const int64 width_;
    const int64 pixel_count_;
    int64 position_ = 0;  // pixels from the first row's start; may lie past the picture
    const PixelTable table_;
    std::vector<bool>& changed_rows_;
    // The pixels that lie in the row that was marked last.
    int64 marked_start_ = 0;
    int64 marked_end_ = 0;
};

}  // namespace kirto
