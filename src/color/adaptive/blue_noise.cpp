#include "color/adaptive/blue_noise.h"

#include <algorithm>
#include <cmath>

namespace kirto {

namespace {

constexpr int32 kSize = BlueNoise::kSize;
constexpr size_t kPlaces = BlueNoise::kRanks;
// How far a point is felt, as the method's author found best.
constexpr double kSigma = 1.9;

// Points in a square whose edges meet, and how crowded each place is by them.
class Points {
  public:
    Points();

    bool IsSet(size_t place) const { return set_[place]; }
    void Set(size_t place) { Change(place, true); }
    void Clear(size_t place) { Change(place, false); }
    // The most crowded point.
    size_t Cluster() const;
    // The least crowded place without a point.
    size_t Void() const;

  private:
    void Change(size_t place, bool set);

    std::array<bool, kPlaces> set_{};
    std::array<int32, kPlaces> crowding_{};
    std::array<int32, kPlaces> felt_{};  // at a place, of a point at the first place
};

Points::Points() {
    for (size_t i = 0; i < kPlaces; ++i) {
        const int32 x = static_cast<int32>(i) % kSize;
        const int32 y = static_cast<int32>(i) / kSize;
        const int32 across = std::min(x, kSize - x);
        const int32 down = std::min(y, kSize - y);
        const double squares = across * across + down * down;
        // Whole numbers: their sums don't depend on the order.
        felt_[i] =
            static_cast<int32>(std::lround(65536 * std::exp(-squares / (2 * kSigma * kSigma))));
    }
}

void Points::Change(size_t place, bool set) {
    set_[place] = set;
    const int32 sign = set ? 1 : -1;
    const int32 left = static_cast<int32>(place) % kSize;
    const int32 top = static_cast<int32>(place) / kSize;
    for (int32 i = 0; i < BlueNoise::kRanks; ++i) {
        const int32 x = (i % kSize - left + kSize) % kSize;
        const int32 y = (i / kSize - top + kSize) % kSize;
        crowding_[static_cast<size_t>(i)] += sign * felt_[static_cast<size_t>(y * kSize + x)];
    }
}

size_t Points::Cluster() const {
    size_t found = kPlaces;
    for (size_t i = 0; i < kPlaces; ++i) {
        if (set_[i] && (found == kPlaces || crowding_[i] > crowding_[found])) found = i;
    }
    return found;
}

size_t Points::Void() const {
    size_t found = kPlaces;
    for (size_t i = 0; i < kPlaces; ++i) {
        if (!set_[i] && (found == kPlaces || crowding_[i] < crowding_[found])) found = i;
    }
    return found;
}

// So many points, spread evenly.
Points SpreadPoints(size_t count) {
    Points points;
    uint32 random = 1;
    for (size_t made = 0; made < count;) {
        random = random * 1664525 + 1013904223;  // Numerical Recipes' generator
        const size_t place = (random >> 8) % kPlaces;
        if (points.IsSet(place)) continue;
        points.Set(place);
        ++made;
    }
    for (;;) {
        const size_t from = points.Cluster();
        points.Clear(from);
        const size_t to = points.Void();
        points.Set(to);
        if (to == from) return points;
    }
}

}  // namespace

const BlueNoise& BlueNoise::Square() {
    static const BlueNoise square;
    return square;
}

BlueNoise::BlueNoise() {
    constexpr size_t kFirstPoints = kPlaces / 10;
    const Points spread = SpreadPoints(kFirstPoints);
    Points points = spread;
    for (size_t rank = kFirstPoints; rank-- > 0;) {
        const size_t place = points.Cluster();
        points.Clear(place);
        ranks_[place] = static_cast<uint16>(rank);
    }
    points = spread;
    for (size_t rank = kFirstPoints; rank < kPlaces; ++rank) {
        const size_t place = points.Void();
        points.Set(place);
        ranks_[place] = static_cast<uint16>(rank);
    }
}

}  // namespace kirto
