#pragma once

#include <algorithm>
#include <array>
#include <vector>

#include "base/types.h"

namespace kirto {

// The strings that have got a code since the table of a GIF image was cleared: a tree in which each
// index leads from a string to one that is longer by it. Chains of one and the same index, which
// drawings have, are passed many steps at a time. Used by one thread; throws std::bad_alloc.
class LzwStrings {
  public:
    static constexpr uint32 kMaxCodeSize = 12;
    static constexpr uint32 kMost = 1U << kMaxCodeSize;
    // No string of several indices has this code.
    static constexpr uint32 kNone = 0;
    // The steps of a leap.
    static constexpr uint32 kLeap = 16;

    // Nothing but the strings of one index remain, each index being its own code.
    // index_bits: 1 to 8; indices are below 2^index_bits.
    void Clear(int32 index_bits);

    // The code that the next string to be added gets; kMost: the table is full.
    uint32 NextFree() const { return next_free_; }
    bool Full() const { return next_free_ == kMost; }

    // The string with the index behind it, or kNone.
    uint32 Longer(uint32 code, uint32 index) const { return longer_[code << bits_ | index]; }
    // The string without its last index, of which it has more than one.
    uint32 Shorter(uint32 code) const { return nodes_[code].shorter; }
    uint8 LastIndex(uint32 code) const { return nodes_[code].last; }
    // The string with its last index kLeap times more, or kNone.
    uint32 Leap(uint32 code) const { return leaps_[code]; }

    // Gives the next code to the string with the index behind it. One that has got a code already
    // keeps that, and the next code is lost. Not when the table is full.
    void Add(uint32 code, uint32 index);
    // The same for now, and whether it is a new string; Withdraw() has to follow then.
    bool Offer(uint32 code, uint32 index);
    void Withdraw(uint32 code, uint32 index);

  private:
    struct Node {
        uint16 shorter = 0;
        uint16 run = 1;   // equal indices at the end of the string
        uint16 back = 0;  // the string whose leap this is, if any
        uint8 last = 0;
    };

    void Link(uint32 code, uint32 index, uint32 added);

    uint32 bits_ = 0;
    uint32 next_free_ = 0;
    std::vector<uint16> longer_;  // by code and index
    std::array<uint16, kMost> leaps_;
    std::array<Node, kMost> nodes_;
};

inline bool LzwStrings::Offer(uint32 code, uint32 index) {
    uint16& slot = longer_[code << bits_ | index];
    if (slot != kNone) return false;
    slot = static_cast<uint16>(next_free_);
    std::fill_n(longer_.begin() + static_cast<ptrdiff_t>(next_free_ << bits_), size_t{1} << bits_,
                uint16{kNone});
    nodes_[next_free_] = {static_cast<uint16>(code), 1, 0, static_cast<uint8>(index)};
    leaps_[next_free_] = kNone;
    return true;
}

inline void LzwStrings::Withdraw(uint32 code, uint32 index) {
    longer_[code << bits_ | index] = kNone;
}

inline void LzwStrings::Add(uint32 code, uint32 index) {
    const uint32 added = next_free_;
    if (Offer(code, index)) Link(code, index, added);
    ++next_free_;
}

}  // namespace kirto
