#pragma once

#include <span>

#include "base/types.h"
#include "base/work.h"
#include "color/adaptive/alpha_matte.h"
#include "color/color_values.h"
#include "picture/picture.h"

namespace kirto {

// The colors that are seen in one picture, or in several that are to share a palette, each with its
// number of pixels. Used by one thread.
class ColorCensus {
  public:
    // Counting ends early when the work, if any, is stopped.
    explicit ColorCensus(const AlphaMatte& matte, const Work* work = nullptr)
        : matte_(matte), work_(work), counts_(work) {}

    // Counts the picture's pixels, too. B_OK; B_BAD_TYPE where it isn't 32-bit, and nothing is
    // counted; B_NO_MEMORY or B_CANCELED, and the census is of no use any more.
    status_t Add(const Picture& picture);

    // Every color once, with at least one pixel and at most 2^32 - 1: more count as so many.
    std::span<const ColorValues::Item> Colors() const { return counts_.Items(); }
    // Whether a pixel was transparent.
    bool HasTransparent() const { return has_transparent_; }

  private:
    // False when memory is short or the work was stopped.
    bool Count(uint32 key, uint32 pixels);
    template <bool kBigEndian>
    bool AddStrip(const Strip& strip, size_t width);

    const AlphaMatte matte_;
    const Work* work_;
    ColorValues counts_;
    bool has_transparent_ = false;
};

}  // namespace kirto
