#pragma once

#include <span>
#include <vector>

#include "base/allocation.h"
#include "base/types.h"
#include "base/work.h"
#include "color/color_values.h"

namespace kirto {

// Counts pixels of many colors that come again and again, as those of photographs do: each of the
// 16 million colors has a counter, and counters of similar colors lie close to each other, so that
// the processor's cache holds most that are asked for and few pages are touched. Used by one
// thread.
class ColorCube {
  public:
    using Item = ColorValues::Item;
    using Pixels = std::span<const uint8>;  // 4 bytes each

    // Where there are more colors than this, or more than every second pixel brings a new one, this
    // is the wrong place to count them.
    static constexpr size_t kMostColors = 1 << 18;

    // big_endian: alpha, red, green, blue, not the reverse. work: may stop the counting; may be
    // null.
    ColorCube(bool big_endian, const Work* work) : big_endian_(big_endian), work_(work) {}

    // Counts the pixels on top of what has been counted, at most kMostColors, from the first one on
    // until there are too many colors. False when memory is short or the work was stopped.
    bool Count(std::span<const Item> counted, const std::vector<Pixels>& pixels);
    // How many of the pixels Count has counted.
    size_t Done() const { return done_; }
    // Each color with its number of pixels, in the order in which they appear.
    std::span<const Item> Items() const { return {items_.get(), size_}; }

  private:
    bool Allocate(const std::vector<Pixels>& pixels);
    template <bool kBigEndian>
    void CountBlock(const uint8* pixels, size_t count);
    // Puts what has been counted into the items.
    void TakeCounts(size_t counted);

    const bool big_endian_;
    const Work* const work_;
    AllocatedArray<uint16> counts_;  // by Place; 0 where the color is new
    AllocatedArray<uint32> full_;    // a color for each time that its counter was full
    size_t full_size_ = 0;
    AllocatedArray<Item> items_;
    size_t size_ = 0;
    size_t done_ = 0;
};

}  // namespace kirto
