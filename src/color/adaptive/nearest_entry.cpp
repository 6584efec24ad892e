#include "color/adaptive/nearest_entry.h"

#include <algorithm>
#include <limits>

namespace kirto {

namespace {

// A color farther from all others than these are from each other.
constexpr int32 kFarAway = 4000;

}  // namespace

NearestEntry::NearestEntry(std::span<const rgb_color> colors, int32 excluded)
    : lists_(AllocateArray<List>(kCells)),
      listed_(AllocateArray<uint8>(kListed)),
      parts_(AllocateArray<Parts>(3 * kSteps)) {
    entries_.fill({kFarAway, kFarAway, kFarAway});
    for (const rgb_color& color : colors.first(std::min(colors.size(), kEntries)))
        entries_[count_++] = {color.red, color.green, color.blue};
    if (excluded >= 0 && static_cast<size_t>(excluded) < count_) {
        entries_[static_cast<size_t>(excluded)] = {kFarAway, kFarAway, kFarAway};
    }
    if (HasLists()) MeasureParts();
}

void NearestEntry::MeasureParts() {
    constexpr int32 kLevels = 256 >> kCellBits;
    for (size_t i = 0; i < 3 * kSteps; ++i) {
        const size_t component = i / kSteps;
        const int32 low = static_cast<int32>(i % kSteps) * kLevels;
        const int32 high = low + kLevels - 1;
        for (size_t entry = 0; entry < kEntries; ++entry) {
            const int32 level = entries_[entry][component];
            const int32 outside = std::max({low - level, level - high, 0});
            const int32 across = std::max(high - level, level - low);
            parts_[i].nearest[entry] = kColorWeights[component] * outside * outside;
            parts_[i].farthest[entry] = kColorWeights[component] * across * across;
        }
    }
}

uint8 NearestEntry::IndexOf(const ColorComponents& color) {
    size_t cell = 0;
    for (const int32 component : color)
        cell = cell << kCellBits | static_cast<size_t>(component >> (8 - kCellBits));
    if (!HasLists() || (lists_[cell].count == 0 && !MakeList(cell))) return SearchAll(color);
    const List list = lists_[cell];
    const uint8* const indices = listed_.get() + list.first;
    uint8 nearest = indices[0];
    int32 least = ColorDistance(entries_[nearest], color);
    for (size_t i = 1; i < list.count; ++i) {
        const int32 distance = ColorDistance(entries_[indices[i]], color);
        nearest = distance < least ? indices[i] : nearest;
        least = std::min(distance, least);
    }
    return nearest;
}

// No color of the cell is farther from its nearest entry than the least of the farthest distances:
// an entry that is always farther away than that is never the nearest.
bool NearestEntry::MakeList(size_t cell) {
    if (count_ == 0 || listed_count_ + count_ > kListed) return false;
    const Parts& red = PartsOf(0, cell / kSteps / kSteps);
    const Parts& green = PartsOf(1, cell / kSteps % kSteps);
    const Parts& blue = PartsOf(2, cell % kSteps);
    std::array<int32, kEntries> nearest;
    int32 bound = std::numeric_limits<int32>::max();
    for (size_t i = 0; i < kEntries; ++i) {
        nearest[i] = red.nearest[i] + green.nearest[i] + blue.nearest[i];
        bound = std::min(bound, red.farthest[i] + green.farthest[i] + blue.farthest[i]);
    }
    uint8* const list = listed_.get() + listed_count_;
    uint32 count = 0;
    for (size_t i = 0; i < count_; ++i) {
        list[count] = static_cast<uint8>(i);
        count += nearest[i] <= bound ? 1U : 0U;
    }
    lists_[cell] = {static_cast<uint32>(listed_count_), count};
    listed_count_ += count;
    return true;
}

uint8 NearestEntry::SearchAll(const ColorComponents& color) const {
    size_t nearest = 0;
    for (size_t i = 1; i < count_; ++i) {
        if (ColorDistance(entries_[i], color) < ColorDistance(entries_[nearest], color))
            nearest = i;
    }
    return static_cast<uint8>(nearest);
}

}  // namespace kirto
