#pragma once

#include <array>
#include <span>
#include <vector>

#include "base/allocation.h"
#include "base/types.h"
#include "base/work.h"
#include "color/color_values.h"

namespace kirto {

// Counts pixels of so many colors that a table of them is too large for the processor's cache. The
// pixels are put in order by their green, and those of each green are counted in a small table by
// red and blue. Used by one thread.
class ColorSlices {
  public:
    using Item = ColorValues::Item;
    using Pixels = std::span<const uint8>;  // 4 bytes each

    // big_endian: alpha, red, green, blue, not the reverse. work: may stop the counting; may be
    // null.
    ColorSlices(bool big_endian, const Work* work) : big_endian_(big_endian), work_(work) {}

    // Counts the pixels on top of what has been counted. False when memory is short or the work was
    // stopped.
    bool Count(std::span<const Item> counted, const std::vector<Pixels>& pixels);
    // Each color with its number of pixels, by green; those of the same green in the order in which
    // they appear.
    std::span<const Item> Items() const { return {items_.get(), size_}; }

  private:
    static constexpr size_t kSlices = 256;
    // Where each slice begins, and where the last one ends.
    using Begins = std::array<size_t, kSlices + 1>;

    template <bool kBigEndian>
    bool CountAs(std::span<const Item> counted, const std::vector<Pixels>& pixels);
    template <bool kBigEndian>
    Begins Measure(const std::vector<Pixels>& pixels) const;
    template <bool kBigEndian>
    bool Sort(const std::vector<Pixels>& pixels, const Begins& begins);
    // Room for so many items more.
    bool MakeRoom(size_t more);
    void CountSlice(uint32 green, std::span<const Item> counted, std::span<const uint16> sorted);

    const bool big_endian_;
    const Work* const work_;
    AllocatedArray<uint16> sorted_;  // red and blue of each pixel, slice by slice
    AllocatedArray<uint32> counts_;  // by red and blue; 0 between two slices
    AllocatedArray<Item> items_;
    size_t size_ = 0;
    size_t capacity_ = 0;
};

}  // namespace kirto
