#include "effects/fade_share.h"

#include <cmath>

namespace kirto {

namespace {

// With shares that are multiples of 2^-40, double precision rounds nothing in a blend, which then
// depends on the difference of its bytes alone: it is second + floor((first - second) share).
constexpr int32 kExactBits = 40;

// Whether the whole number does what the share, a multiple of 2^-40, does to every difference.
bool Agree(int64 fixed, int64 exact) {
    for (int64 difference = -255; difference <= 255; ++difference) {
        if (difference * fixed >> FadeShare::kFixedBits != difference * exact >> kExactBits)
            return false;
    }
    return true;
}

int32 FixedOf(double share) {
    const double scaled = std::ldexp(share, kExactBits);
    const int64 exact = static_cast<int64>(scaled);
    if (static_cast<double>(exact) != scaled) return -1;
    const int64 below = exact >> (kExactBits - FadeShare::kFixedBits);
    if (Agree(below, exact)) return static_cast<int32>(below);
    // Above a fraction that single precision has rounded up.
    return Agree(below + 1, exact) ? static_cast<int32>(below + 1) : -1;
}

}  // namespace

FadeShare::FadeShare(double share) : share_(share), fixed_(FixedOf(share)) {}

}  // namespace kirto
