#pragma once

#include "base/types.h"

namespace kirto {

// The order of a GIF image's rows in its data: from the top, or interlaced in the four
// passes 0, 8, 16, ...; 4, 12, ...; 2, 6, ...; 1, 3, .... Passes whose first row is below a low
// image are skipped.
class GifRowOrder {
  public:
    // height: rows of the image, 0 or more.
    GifRowOrder(int32 height, bool interlaced) : height_(height), interlaced_(interlaced) {}

    // True once every row has been visited.
    bool Done() const { return row_ >= height_; }
    // The current row; only while not Done().
    int32 Row() const { return row_; }
    void Next() {
        if (!interlaced_) {
            ++row_;
            return;
        }
        row_ += kSteps[pass_];
        while (row_ >= height_ && pass_ < 3)
            row_ = kStarts[++pass_];
    }

  private:
    static constexpr int32 kStarts[4] = {0, 4, 2, 1};
    static constexpr int32 kSteps[4] = {8, 8, 4, 2};

    int32 height_;
    bool interlaced_;
    int32 pass_ = 0;
    int32 row_ = 0;
};

}  // namespace kirto
