#pragma once

#include <span>

#include "base/types.h"
#include "formats/fli/fli_canvas.h"

namespace kirto {

// Draws palette indices on a canvas at a position that runs through it row after row. A run that
// passes the end of a row goes on in the next one: that is how the data of some writers is meant,
// and pictures must stay what they are. What passes the last row is dropped.
class FliPixelWriter {
  public:
    // The canvas is ready, and outlives the writer.
    explicit FliPixelWriter(FliCanvas& canvas) : canvas_(canvas) {}

    // To the start of row y, 0 or more; rows below the picture take no pixels.
    void MoveToRow(int64 y);
    // Where the next pixel goes, from the first row's start; may lie past the picture.
    int64 Position() const { return position_; }
    // Leaves the next pixels as they are.
    void Skip(int64 count);
    // One pixel per index.
    void Copy(std::span<const uint8> indices);
    // The index, count times.
    void Repeat(uint8 index, int32 count);
    // The two indices, count times.
    void RepeatPair(uint8 first, uint8 second, int32 count);

  private:
    // Moves on by count pixels. Returns how many of them lie on the canvas; the first at *start.
    int64 Take(int64 count, int64* start);

    FliCanvas& canvas_;
    int64 position_ = 0;  // pixels from the first row's start; may lie past the picture
};

}  // namespace kirto
