#pragma once

#include <array>
#include <span>

#include "base/allocation.h"
#include "base/types.h"
#include "color/adaptive/color_metric.h"

namespace kirto {

// The entry of a palette nearest to a color by ColorDistance, the lowest index among equals. Of the
// 32 x 32 x 32 cells that colors lie in, each has a list of the entries that are nearest to any
// color there, made when it is first asked for. Used by one thread.
class NearestEntry {
  public:
    static constexpr int32 kNone = -1;

    // colors: at most 256 are looked at, and one at least. excluded: an entry that is never the
    // answer unless it is the only one, or kNone. Without memory for lists everything is found all
    // the same, later.
    explicit NearestEntry(std::span<const rgb_color> colors, int32 excluded = kNone);

    // color: levels from 0 to 255.
    uint8 IndexOf(const ColorComponents& color);
    const ColorComponents& ColorOf(uint8 index) const { return entries_[index]; }

  private:
    static constexpr size_t kEntries = 256;
    static constexpr int32 kCellBits = 5;  // of each component
    static constexpr size_t kSteps = size_t{1} << kCellBits;
    static constexpr size_t kCells = kSteps * kSteps * kSteps;
    static constexpr size_t kListed = size_t{1} << 20;  // entries in all lists

    // Where a cell's list is: nowhere while the count is 0.
    struct List {
        uint32 first;
        uint32 count;
    };
    // For each entry, the part of one component in its distance from a cell.
    struct Parts {
        std::array<int32, kEntries> nearest;   // from the nearest color there
        std::array<int32, kEntries> farthest;  // from the farthest
    };

    bool HasLists() const { return lists_ && listed_ && parts_; }
    const Parts& PartsOf(size_t component, size_t step) const {
        return parts_[component * kSteps + step];
    }
    void MeasureParts();
    // False when there is no room left.
    bool MakeList(size_t cell);
    uint8 SearchAll(const ColorComponents& color) const;

    std::array<ColorComponents, kEntries> entries_;
    size_t count_ = 0;
    AllocatedArray<List> lists_;
    AllocatedArray<uint8> listed_;
    size_t listed_count_ = 0;
    AllocatedArray<Parts> parts_;  // for each step of each component
};

}  // namespace kirto
