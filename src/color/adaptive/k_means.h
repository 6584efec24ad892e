#pragma once

#include <array>
#include <span>

#include "base/allocation.h"
#include "base/types.h"
#include "base/work.h"
#include "color/adaptive/color_points.h"

namespace kirto {

// Up to 256 colors, each of which stands for the points that are nearest to it, in a point's steps.
// A plain value.
struct ColorCenters {
    static constexpr size_t kMost = 256;

    std::array<ColorComponents, kMost> colors{};
    size_t count = 0;
    size_t fixed = 0;  // so many from the first on never move
};

// Moves each center to the mean of its points, over and over, until that no longer helps: Lloyd's
// algorithm with weights, where centers too far from a point's last one are not looked at. After M.
// E. Celebi, "Improving the performance of k-means for color quantization", 2011, who calls it
// weighted sort-means. Used by one thread.
class KMeans {
  public:
    // points: outlive this. The work, if any, may be stopped.
    explicit KMeans(std::span<const ColorPoint> points, const Work* work = nullptr);

    // False when memory is short; then nothing below may be called.
    bool Ready() const { return nearest_ && distances_ && others_; }
    // Says which center is likely to be nearest to a point, which saves the first round looking at
    // all of them.
    void Place(size_t point, size_t center) { nearest_[point] = static_cast<uint8>(center); }
    // Moves the centers, at least one, in at most so many rounds. False when the work was stopped.
    bool Settle(ColorCenters* centers, int max_rounds);

    // As of the last round, when the centers had not yet moved.

    // The sum of the pixels' distances.
    double Error() const { return error_; }
    // Each point's center.
    std::span<const uint8> Nearest() const { return {nearest_.get(), points_.size()}; }

  private:
    // A center as another one sees it.
    struct Other {
        int32 distance;
        uint32 center;
        ColorComponents color;
    };
    struct Sum {
        std::array<double, 3> color{};
        double pixels = 0;
    };

    bool Assign(const ColorCenters& centers);
    // Measures each point's distance from its last center, and notes the largest of each center.
    void MeasureLast(const ColorCenters& centers);
    // Lists, for each center, the others that may be nearer to one of its points, by distance.
    void FindOthers(const ColorCenters& centers);
    void AssignPoint(size_t point);
    void MoveToMeans(ColorCenters* centers);
    // Gives a center without points the point that costs most.
    void Reseat(ColorCenters* centers, size_t center);

    const std::span<const ColorPoint> points_;
    const Work* work_;
    AllocatedArray<uint8> nearest_;
    AllocatedArray<int32> distances_;  // of each point from its center
    AllocatedArray<Other> others_;     // kMost for each center
    std::array<size_t, ColorCenters::kMost> other_counts_{};
    std::array<int32, ColorCenters::kMost> reach_{};  // the largest distance of a center's points
    std::array<Sum, ColorCenters::kMost> sums_;
    double error_ = 0;
};

}  // namespace kirto
