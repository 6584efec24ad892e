#pragma once

#include <array>
#include <span>

#include "base/types.h"
#include "base/work.h"
#include "color/adaptive/k_means.h"
#include "color/color_values.h"

namespace kirto {

// The colors that stand for those of a picture, or of several together, with the least error: for
// pictures of more than 256 colors, where the commonest colors alone would do badly. How it is
// done: ColorClusters. A plain value.
class AdaptivePalette {
  public:
    static constexpr int32 kMaxEntries = ColorCenters::kMost;

    // colors: as ColorCensus counts them, each once; their order does not matter. entries: how many
    // to find at most, 1 to kMaxEntries. exact: colors that become the first entries as they are,
    // whether they occur or not. If entries suffice for all colors, these are the palette. On one
    // core, the colors of a photograph of 640 x 480 pixels take some 30 ms.
    // B_OK; B_BAD_VALUE where entries is out of range or less than the different exact colors,
    // B_NO_MEMORY, B_CANCELED where the work was stopped: then nothing changes.
    status_t Make(std::span<const ColorValues::Item> colors, int32 entries,
                  std::span<const rgb_color> exact = {}, const Work* work = nullptr);

    // The entries, opaque and different: the exact ones in their order, then the others by rising
    // red, green and blue. There may be fewer than asked for, and none where there are no colors.
    std::span<const rgb_color> Colors() const { return {entries_.data(), count_}; }
    // Whether each color is an entry, so that mapping changes nothing.
    bool IsLossless() const { return lossless_; }

  private:
    bool Contains(rgb_color color) const;
    void Append(rgb_color color);
    // False when there are more than that many entries to append.
    bool AppendAll(std::span<const ColorValues::Item> colors, size_t entries);
    status_t AppendMeans(std::span<const ColorValues::Item> colors, size_t entries,
                         const Work* work);
    void SortFrom(size_t first);

    std::array<rgb_color, kMaxEntries> entries_{};
    size_t count_ = 0;
    bool lossless_ = true;
};

}  // namespace kirto
