// What the commands about colors do to a color.
#pragma once

#include <array>

#include "effects/pictures/map_colors.h"

namespace kirto {

struct ColorAdjustment {
    int32 brightness = 0;    // percent, -100 (black) to 100 (white)
    int32 contrast = 0;      // percent, -100 (all grey) to 100 (ends only)
    int32 saturation = 0;    // percent, -100 (greys) to 100 (twice as far from them)
    bool greyscale = false;  // whatever the saturation

    // Whether the numbers are within their bounds.
    bool IsSound() const;
};

// Saturation moves the components away from, or toward, the grey of the same light (the weights of
// Rec. 709); then brightness moves each so much of the way to its end; then contrast stretches it
// around the middle, by tan((contrast + 100) percent of 45 degrees). Components are rounded to the
// nearest after the saturation and at the end.
class AdjustmentMap : public ColorMap {
  public:
    explicit AdjustmentMap(const ColorAdjustment& adjustment);
    ColorBytes Of(ColorBytes color) const override;

  private:
    const float saturation_;  // 0: greys, 1: as it is
    std::array<uint8, 256> components_{};
};

// So much of the alpha there is, rounded to the nearest.
class OpacityMap : public ColorMap {
  public:
    // percent: 0 to 100
    explicit OpacityMap(int32 percent) : percent_(percent) {}
    ColorBytes Of(ColorBytes color) const override;

  private:
    const int32 percent_;
};

// A color, and those of which no component is farther away from it than the tolerance, become
// transparent.
class TransparencyMap : public ColorMap {
  public:
    // tolerance: 0 to 255
    TransparencyMap(rgb_color color, int32 tolerance) : color_(color), tolerance_(tolerance) {}
    ColorBytes Of(ColorBytes color) const override;

  private:
    const rgb_color color_;
    const int32 tolerance_;
};

}  // namespace kirto
