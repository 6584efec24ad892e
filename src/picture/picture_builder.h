#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "base/pixel_budget.h"
#include "base/types.h"
#include "picture/picture.h"
#include "picture/pixel_packer.h"

namespace kirto {

// Makes a picture row by row, from the top. Each strip becomes what takes the least memory: one
// pixel for all, indices where there are few enough colors, or else the pixels themselves. The same
// rows always become the same strips, so a strip that equals that of an earlier picture is taken
// from there. Used by one thread.
class PictureBuilder {
  public:
    // height: as many rows will come. earlier: a picture whose strips may be taken, or null. The
    // budget, if any, counts the strips.
    PictureBuilder(int32 width, int32 height, color_space space,
                   std::shared_ptr<PixelBudget> budget,
                   std::shared_ptr<const Picture> earlier = nullptr);

    // Leaves out the rows up to that one: they will not be in what is taken. Before anything is
    // added.
    void StartAt(int32 row) { first_row_ = row; }
    // Takes a row of 4-byte pixels. False when memory is short; the picture can't be made then.
    bool AddRow(const uint8* pixels);
    // Takes a strip as it is. False as above.
    bool AddStrip(std::shared_ptr<const Strip> strip);
    // What has come of a strip is all of it. False as above.
    bool EndStrip();
    // False once a strip had too many colors for indices.
    bool OnlyIndices() const { return only_indices_; }

    // What has been built; empty when memory was short.
    Picture::Strips TakeStrips();
    // The same as a picture; null when memory was short. Nothing may be added afterwards.
    std::shared_ptr<const Picture> Take();

  private:
    bool StartDirect();
    // Rows of the strip that is being made, once it is complete.
    int32 StripRows() const { return std::min(strip_rows_, height_ - first_row_); }
    std::shared_ptr<const Strip> MakeStrip() const;
    std::shared_ptr<const Strip> MakeIndexed() const;
    std::shared_ptr<const Strip> EarlierStrip(int32 rows) const;

    const int32 width_;
    const int32 height_;
    const int32 strip_rows_;
    const color_space space_;
    const std::shared_ptr<PixelBudget> budget_;
    const std::shared_ptr<const Picture> earlier_;
    Picture::Strips strips_;
    int32 first_row_ = 0;  // of the strip that is being made
    int32 rows_ = 0;       // it has so far
    PixelPacker packer_;
    std::vector<uint8> indices_;            // of its rows, as long as they have few colors
    std::shared_ptr<PixelStorage> pixels_;  // of its rows once they have not
    bool only_indices_ = true;
    bool failed_ = false;
};

}  // namespace kirto
