#include "effects/pictures/color_maps.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>

#include "effects/pictures/linear_light.h"

namespace kirto {

namespace {

bool IsPercentage(int32 number) {
    return number >= -100 && number <= 100;
}

uint8 Rounded(float component) {
    // Nothing is negative here, and a call a component would take longer than all else.
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    return static_cast<uint8>(std::clamp(component, 0.0f, 255.0f) + 0.5f);
}

uint8 GreyOf(ColorBytes color) {
    return ComponentOf(0.2126f * LightOf(color.red) + 0.7152f * LightOf(color.green) +
                       0.0722f * LightOf(color.blue));
}

double Brightened(double component, double brightness) {
    return brightness < 0 ? component * (1 + brightness) : component + (1 - component) * brightness;
}

}  // namespace

bool ColorAdjustment::IsSound() const {
    return IsPercentage(brightness) && IsPercentage(contrast) && IsPercentage(saturation);
}

AdjustmentMap::AdjustmentMap(const ColorAdjustment& adjustment)
    : saturation_(adjustment.greyscale ? 0.0f
                                       : static_cast<float>(100 + adjustment.saturation) / 100.0f) {
    const double slope = std::tan((adjustment.contrast + 100) / 100.0 * std::numbers::pi / 4);
    for (size_t i = 0; i < components_.size(); ++i) {
        const double bright =
            Brightened(static_cast<double>(i) / 255, adjustment.brightness / 100.0);
        const double stretched = (bright - 0.5) * slope + 0.5;
        components_[i] = static_cast<uint8>(std::lround(std::clamp(stretched, 0.0, 1.0) * 255));
    }
}

ColorBytes AdjustmentMap::Of(ColorBytes color) const {
    if (saturation_ != 1.0f) {
        const float grey = GreyOf(color);
        const auto saturated = [this, grey](uint8 component) {
            return Rounded(grey + (static_cast<float>(component) - grey) * saturation_);
        };
        color = {saturated(color.blue), saturated(color.green), saturated(color.red), color.alpha};
    }
    return {components_[color.blue], components_[color.green], components_[color.red], color.alpha};
}

ColorBytes OpacityMap::Of(ColorBytes color) const {
    color.alpha = static_cast<uint8>((color.alpha * percent_ + 50) / 100);
    return color;
}

ColorBytes TransparencyMap::Of(ColorBytes color) const {
    const bool near = std::abs(color.red - color_.red) <= tolerance_ &&
                      std::abs(color.green - color_.green) <= tolerance_ &&
                      std::abs(color.blue - color_.blue) <= tolerance_;
    return near ? ColorBytes{} : color;
}

}  // namespace kirto
