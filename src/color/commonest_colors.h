#pragma once

#include "base/allocation.h"
#include "base/types.h"
#include "color/color_values.h"

namespace kirto {

// Picks the most frequent of any number of colors, at the same cost for each. Used by one thread.
class CommonestColors {
  public:
    // size: how many to keep, at least 1.
    explicit CommonestColors(size_t size);

    // False when memory is too short to keep any.
    bool Ready() const { return candidates_ != nullptr; }
    // A color with its number of pixels. Colors come in the order in which they appear in the
    // picture. Only while Ready().
    void Add(const ColorValues::Item& color) {
        const Candidate candidate{color.key, color.value, added_++};
        if (!thinned_ || ComesBefore{}(candidate, last_)) Keep(candidate);
    }
    // The keys of the commonest colors in falling order; equally frequent ones by rising green and
    // blue, those that differ only in red as they came. Returns how many there are, at most size.
    size_t Keys(uint32* keys);

  private:
    struct Candidate {
        uint32 key;
        uint32 count;
        uint32 place;  // among the colors added
    };

    // An object, so that sorting has its code in line.
    struct ComesBefore {
        bool operator()(const Candidate& a, const Candidate& b) const {
            if (a.count != b.count) return a.count > b.count;
            const uint32 green_and_blue_a = a.key & 0xFFFF;
            const uint32 green_and_blue_b = b.key & 0xFFFF;
            if (green_and_blue_a != green_and_blue_b) return green_and_blue_a < green_and_blue_b;
            return a.place < b.place;
        }
    };
    void Keep(const Candidate& candidate);
    // Drops the candidates that are not among the commonest.
    void Thin();

    const size_t size_;
    AllocatedArray<Candidate> candidates_;  // room for twice the size
    size_t count_ = 0;
    uint32 added_ = 0;
    bool thinned_ = false;
    Candidate last_{};  // once thinned: the last of the commonest so far
};

}  // namespace kirto
