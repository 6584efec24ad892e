#include "color/adaptive/k_means.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kirto {

namespace {

// A round that lowers the error by less than this part is the last.
constexpr double kLeastImprovement = 1.0 / 1024;
constexpr size_t kPointsAtOnce = 1 << 14;  // between two looks at the work

}  // namespace

KMeans::KMeans(std::span<const ColorPoint> points, const Work* work)
    : points_(points),
      work_(work),
      nearest_(AllocateArray<uint8>(points.size())),
      distances_(AllocateArray<int32>(points.size())),
      others_(AllocateArray<Other>(ColorCenters::kMost * ColorCenters::kMost)) {}

bool KMeans::Settle(ColorCenters* centers, int max_rounds) {
    // The centers may be fewer than before.
    for (size_t i = 0; i < points_.size(); ++i)
        nearest_[i] = std::min(nearest_[i], static_cast<uint8>(centers->count - 1));
    double last_error = std::numeric_limits<double>::max();
    for (int round = 0; round < max_rounds; ++round) {
        if (!Assign(*centers)) return false;
        MoveToMeans(centers);
        if (last_error - error_ <= last_error * kLeastImprovement) break;
        last_error = error_;
    }
    return true;
}

bool KMeans::Assign(const ColorCenters& centers) {
    MeasureLast(centers);
    FindOthers(centers);
    sums_ = {};
    error_ = 0;
    for (size_t i = 0; i < points_.size(); ++i) {
        if (i % kPointsAtOnce == 0 && IsStopped(work_)) return false;
        AssignPoint(i);
        const double pixels = static_cast<double>(points_[i].pixels);
        error_ += pixels * distances_[i];
        Sum& sum = sums_[nearest_[i]];
        for (size_t k = 0; k < 3; ++k)
            sum.color[k] += pixels * points_[i].color[k];
        sum.pixels += pixels;
    }
    return true;
}

void KMeans::MeasureLast(const ColorCenters& centers) {
    reach_ = {};
    for (size_t i = 0; i < points_.size(); ++i) {
        const size_t center = nearest_[i];
        distances_[i] = ColorDistance(points_[i].color, centers.colors[center]);
        reach_[center] = std::max(reach_[center], distances_[i]);
    }
}

// By the triangle inequality a center is no nearer to a point than the point's last one if it is at
// least twice as far from that one as the point; distances are squares of that.
void KMeans::FindOthers(const ColorCenters& centers) {
    for (size_t i = 0; i < centers.count; ++i) {
        Other* const others = others_.get() + i * ColorCenters::kMost;
        size_t count = 0;
        for (size_t k = 0; k < centers.count; ++k) {
            const int32 distance = ColorDistance(centers.colors[i], centers.colors[k]);
            if (k != i && distance < 4 * reach_[i]) {
                others[count++] = {distance, static_cast<uint32>(k), centers.colors[k]};
            }
        }
        std::sort(others, others + count, [](const Other& a, const Other& b) {
            return a.distance != b.distance ? a.distance < b.distance : a.center < b.center;
        });
        other_counts_[i] = count;
    }
}

void KMeans::AssignPoint(size_t point) {
    const ColorComponents color = points_[point].color;
    uint32 nearest = nearest_[point];
    int32 least = distances_[point];
    const int32 limit = 4 * least;
    const Other* other = others_.get() + nearest * ColorCenters::kMost;
    const Other* const end = other + other_counts_[nearest];
    for (; other != end && other->distance < limit; ++other) {
        const int32 distance = ColorDistance(color, other->color);
        if (distance >= least) continue;
        least = distance;
        nearest = other->center;
    }
    nearest_[point] = static_cast<uint8>(nearest);
    distances_[point] = least;
}

void KMeans::MoveToMeans(ColorCenters* centers) {
    for (size_t i = centers->fixed; i < centers->count; ++i) {
        const Sum& sum = sums_[i];
        if (sum.pixels <= 0) {
            Reseat(centers, i);
            continue;
        }
        for (size_t k = 0; k < 3; ++k)
            centers->colors[i][k] = static_cast<int32>(std::lround(sum.color[k] / sum.pixels));
    }
}

void KMeans::Reseat(ColorCenters* centers, size_t center) {
    size_t worst = points_.size();
    double worst_cost = 0;
    for (size_t i = 0; i < points_.size(); ++i) {
        const double cost = static_cast<double>(points_[i].pixels) * distances_[i];
        if (cost <= worst_cost) continue;
        worst_cost = cost;
        worst = i;
    }
    if (worst == points_.size()) return;
    centers->colors[center] = points_[worst].color;
    nearest_[worst] = static_cast<uint8>(center);
    distances_[worst] = 0;
}

}  // namespace kirto
