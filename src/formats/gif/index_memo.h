#pragma once

#include "base/allocation.h"
#include "base/types.h"

namespace kirto {

// Remembers the palette indices of colors that were lately looked up; a new color may take the
// place of another one. Used by one thread.
class IndexMemo {
  public:
    // Without memory it remembers nothing.
    IndexMemo()
        : colors_(AllocateArray<uint32>(kPlaces)), indices_(AllocateArray<uint8>(kPlaces)) {}

    bool Ready() const { return colors_ && indices_; }
    // Forgets every color, mostly by counting on: small pictures are done before a large memo could
    // be wiped.
    void Clear();

    // The index of the color, a key of 24 bits, which look_up() finds where it is not known. Only
    // while Ready().
    template <typename LookUp>
    uint8 IndexOf(uint32 key, const LookUp& look_up) {
        const size_t place = key * kScatter >> (32 - kPlaceBits);
        const uint32 color = generation_ << 24 | key;
        if (colors_[place] != color) {
            indices_[place] = look_up();
            colors_[place] = color;
        }
        return indices_[place];
    }

  private:
    static constexpr int32 kPlaceBits = 14;
    static constexpr size_t kPlaces = size_t{1} << kPlaceBits;
    static constexpr uint32 kScatter = 0x9E3779B1;
    static constexpr uint32 kGenerations = 256;

    // The key in each place, below the number of the generation that put it there: 0 is nobody's.
    AllocatedArray<uint32> colors_;
    AllocatedArray<uint8> indices_;
    uint32 generation_ = 1;
};

}  // namespace kirto
