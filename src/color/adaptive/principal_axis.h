#pragma once

#include <array>
#include <span>

#include "base/types.h"
#include "color/adaptive/color_points.h"

namespace kirto {

// The line along which some points differ most, and where to cut across it. Distances are those of
// ColorDistance. After M. Orchard and C. Bouman, "Color quantization of images", 1991 (the axis,
// and which of several sets to cut), and X. Wu, "Color quantization by dynamic programming and
// principal analysis", 1992 (where to cut). A plain value.
class PrincipalAxis {
  public:
    using Members = std::span<uint32>;  // positions in the points

    PrincipalAxis() = default;
    // members: at least one.
    PrincipalAxis(std::span<const ColorPoint> points, std::span<const uint32> members);

    // The sum of the pixels' squared distances from the mean along the axis.
    double Spread() const { return spread_; }
    double Pixels() const { return pixels_; }
    // The mean color, in a point's steps.
    ColorComponents Mean() const;

    // Moves the members on the near side of the cut that leaves the least squared distances before
    // the others, and returns how many these are: none where all lie in one place.
    size_t Cut(std::span<const ColorPoint> points, Members members) const;

  private:
    using Vector = std::array<double, 3>;

    void FindDirection(const std::array<Vector, 3>& covariance);
    double PlaceOf(const ColorPoint& point) const {
        return direction_[0] * point.color[0] + direction_[1] * point.color[1] +
               direction_[2] * point.color[2];
    }

    double pixels_ = 0;
    double spread_ = 0;
    Vector mean_{};
    Vector direction_{};  // times the roots of the metric's weights
};

}  // namespace kirto
