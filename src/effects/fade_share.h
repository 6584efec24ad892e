#pragma once

#include "base/types.h"

namespace kirto {

// How much of a blend is the first picture's: first share + second (1 - share), truncated toward
// zero. Immutable.
class FadeShare {
  public:
    // 0 <= share <= 1.
    explicit FadeShare(double share);

    // Double precision holds the products of a single-precision share and a byte, and their sum,
    // exactly, so nothing but the final truncation rounds.
    uint8 Blend(uint8 first, uint8 second) const {
        return static_cast<uint8>(share_ * first + (1 - share_) * second);
    }

    // A whole number that may take the share's place for every two bytes: Blend() is
    // second + floor((first - second) Fixed() / 2^kFixedBits). From 0 to 2^kFixedBits, or -1 where
    // there is none.
    static constexpr int32 kFixedBits = 21;
    int32 Fixed() const { return fixed_; }

  private:
    double share_;
    int32 fixed_;
};

}  // namespace kirto
