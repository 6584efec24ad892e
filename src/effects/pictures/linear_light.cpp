#include "effects/pictures/linear_light.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace kirto {

namespace {

constexpr int32 kSteps = 1 << 16;  // of light; the darkest components are 19 of them apart

double Linear(double component) {
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

struct LightTables {
    LightTables() {
        for (size_t i = 0; i < light.size(); ++i)
            light[i] = static_cast<float>(Linear(static_cast<double>(i) / 255));
        // A step belongs to the component whose range, from halfway to the one below, holds it.
        size_t step = 0;
        for (size_t i = 0; i < light.size(); ++i) {
            const double end = Linear((static_cast<double>(i) + 0.5) / 255) * (kSteps - 1);
            for (; step < components.size() && static_cast<double>(step) < end; ++step)
                components[step] = static_cast<uint8>(i);
        }
    }

    std::array<float, 256> light{};
    std::array<uint8, kSteps> components{};
};

const LightTables& Tables() {
    static const LightTables tables;
    return tables;
}

size_t StepOf(float light) {
    // Nothing is negative here, and a call a component would take longer than all else.
    // NOLINTNEXTLINE(bugprone-incorrect-roundings)
    return static_cast<size_t>(std::clamp(light, 0.0f, 1.0f) * (kSteps - 1) + 0.5f);
}

}  // namespace

float LightOf(uint8 component) {
    return Tables().light[component];
}

uint8 ComponentOf(float light) {
    return Tables().components[StepOf(light)];
}

void ToLight(const uint8* pixels, int32 count, bool big_endian, float* target) {
    const std::array<float, 256>& light = Tables().light;
    const size_t first = big_endian ? 3 : 0;  // the byte that is blue; alpha is at the other end
    for (int32 i = 0; i < count; ++i, pixels += 4, target += 4) {
        const uint8 alpha_byte = pixels[3 - first];
        const float alpha = alpha_byte == 255 ? 1.0f : static_cast<float>(alpha_byte) / 255;
        target[0] = light[pixels[first]] * alpha;
        target[1] = light[pixels[big_endian ? 2 : 1]] * alpha;
        target[2] = light[pixels[big_endian ? 1 : 2]] * alpha;
        target[3] = alpha;
    }
}

void FromLight(const float* source, int32 count, uint8* target) {
    const std::array<uint8, kSteps>& components = Tables().components;
    for (int32 i = 0; i < count; ++i, source += 4, target += 4) {
        // As in StepOf. NOLINTNEXTLINE(bugprone-incorrect-roundings)
        target[3] = static_cast<uint8>(std::clamp(source[3], 0.0f, 1.0f) * 255 + 0.5f);
        if (target[3] == 0) {
            std::memset(target, 0, 4);
            continue;
        }
        // Not clamped: beside an edge, light and alpha go beyond their ends together.
        const float share = 1 / source[3];
        for (size_t k = 0; k < 3; ++k)
            target[k] = components[StepOf(source[k] * share)];
    }
}

}  // namespace kirto
