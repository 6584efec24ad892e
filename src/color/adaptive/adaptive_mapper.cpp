#include "color/adaptive/adaptive_mapper.h"

#include <algorithm>
#include <utility>

#include "color/adaptive/blue_noise.h"
#include "kit/bitmap.h"

namespace kirto {

namespace {

constexpr int32 kSixteenths = 16;
// Of an error, so many sixteenths are passed on. All of it would add up where a palette lacks a
// side of the colors, and cost photographs in 256 colors 2 dB; this keeps their mean colors as well
// or better, measured after blurring both.
constexpr int32 kPassedOn = 13;
constexpr int32 kPercent = 100;

}  // namespace

AdaptiveMapper::AdaptiveMapper(std::span<const rgb_color> colors, int32 width, color_space space,
                               const Options& options)
    : options_(options),
      matte_(options.matte, options.transparent_index >= 0),
      width_(static_cast<size_t>(std::max(width, 0))),
      big_endian_(IsBigEndian(space)),
      nearest_(colors, options.transparent_index) {
    if (Dither() != AdaptiveDither::kErrorDiffusion) return;
    errors_ = AllocateArray<ColorComponents>(2 * (width_ + 2));
    this_row_ = errors_.get();
    next_row_ = errors_ ? this_row_ + width_ + 2 : nullptr;
}

uint32 AdaptiveMapper::KeyAt(const uint8* pixel) const {
    return big_endian_ ? matte_.KeyAt<true>(pixel) : matte_.KeyAt<false>(pixel);
}

void AdaptiveMapper::MapRow(int32 y, const uint8* pixels, uint8* indices) {
    if (Dither() == AdaptiveDither::kOrdered) {
        MapOrdered(y, pixels, indices);
    } else if (errors_) {
        Diffuse(y, pixels, indices);
    } else {
        MapNearest(pixels, indices);
    }
}

void AdaptiveMapper::MapNearest(const uint8* pixels, uint8* indices) {
    uint32 last_key = AlphaMatte::kTransparent;
    uint8 last_index = TransparentIndex();
    for (size_t x = 0; x < width_; ++x) {
        const uint32 key = KeyAt(pixels + x * 4);
        if (key != last_key) {
            last_key = key;
            last_index = key == AlphaMatte::kTransparent ? TransparentIndex()
                                                         : nearest_.IndexOf(ComponentsOf(key));
        }
        indices[x] = last_index;
    }
}

void AdaptiveMapper::MapOrdered(int32 y, const uint8* pixels, uint8* indices) {
    const BlueNoise& noise = BlueNoise::Square();
    uint32 last_key = AlphaMatte::kTransparent;
    Pair pair;
    for (size_t x = 0; x < width_; ++x) {
        const uint32 key = KeyAt(pixels + x * 4);
        if (key == AlphaMatte::kTransparent) {
            indices[x] = TransparentIndex();
            continue;
        }
        if (key != last_key) pair = PairFor(ComponentsOf(key));
        last_key = key;
        const bool is_second = noise.RankAt(static_cast<int32>(x), y) < pair.threshold;
        indices[x] = is_second ? pair.second : pair.first;
    }
}

// The nearest entry, and the one nearest to the color's reflection from it: it lies on the other
// side, or is the same one within the first quarter of the way there. So mixing begins after a
// quarter and ends before the last, without a step that would be seen.
AdaptiveMapper::Pair AdaptiveMapper::PairFor(const ColorComponents& color) {
    Pair pair;
    pair.first = nearest_.IndexOf(color);
    pair.second = pair.first;
    const ColorComponents& near = nearest_.ColorOf(pair.first);
    if (near == color) return pair;
    ColorComponents reflection;
    for (size_t i = 0; i < 3; ++i)
        reflection[i] = std::clamp(2 * color[i] - near[i], 0, 255);
    const uint8 other = nearest_.IndexOf(reflection);
    // Both colors of the pair order it in the same way, so the grain does not break between them.
    pair.first = std::min(pair.first, other);
    pair.second = std::max(pair.second, other);
    const ColorComponents& first = nearest_.ColorOf(pair.first);
    const ColorComponents& second = nearest_.ColorOf(pair.second);
    int64 along = 0;
    for (size_t i = 0; i < 3; ++i)
        along += int64{kColorWeights[i]} * (color[i] - first[i]) * (second[i] - first[i]);
    const int64 length = std::max(ColorDistance(first, second), 1);
    const auto threshold =
        static_cast<int32>((2 * along - length / 2) * BlueNoise::kRanks / length);
    // The weaker, the nearer to the middle between both they have to be to be mixed.
    constexpr int32 kMiddle = BlueNoise::kRanks / 2;
    pair.threshold = kMiddle + (threshold - kMiddle) * kPercent / options_.strength;
    return pair;
}

void AdaptiveMapper::StartErrors(int32 y) {
    if (y == next_y_ && y != 0) {
        std::swap(this_row_, next_row_);
    } else {
        std::fill_n(this_row_, width_ + 2, ColorComponents{});
    }
    std::fill_n(next_row_, width_ + 2, ColorComponents{});
    next_y_ = y + 1;
}

void AdaptiveMapper::Diffuse(int32 y, const uint8* pixels, uint8* indices) {
    StartErrors(y);
    const bool leftward = y % 2 != 0;
    for (size_t i = 0; i < width_; ++i) {
        const size_t x = leftward ? width_ - 1 - i : i;
        const uint32 key = KeyAt(pixels + x * 4);
        if (key == AlphaMatte::kTransparent) {
            indices[x] = TransparentIndex();
            continue;
        }
        ColorComponents wanted = ComponentsOf(key);
        ColorComponents level;
        for (size_t k = 0; k < 3; ++k) {
            const int32 corrected = wanted[k] * kSixteenths + this_row_[x + 1][k];
            wanted[k] = std::clamp(corrected, 0, 255 * kSixteenths);
            level[k] = (wanted[k] + kSixteenths / 2) / kSixteenths;
        }
        indices[x] = nearest_.IndexOf(level);
        const ColorComponents& chosen = nearest_.ColorOf(indices[x]);
        for (size_t k = 0; k < 3; ++k)
            wanted[k] -= chosen[k] * kSixteenths;
        Spread(wanted, x + 1, leftward);
    }
}

void AdaptiveMapper::Spread(ColorComponents error, size_t column, bool leftward) {
    const size_t ahead = leftward ? column - 1 : column + 1;
    const size_t behind = leftward ? column + 1 : column - 1;
    for (size_t k = 0; k < 3; ++k) {
        const int32 passed_on = error[k] * kPassedOn * options_.strength / (kSixteenths * kPercent);
        const int32 one = passed_on / 16;
        const int32 three = passed_on * 3 / 16;
        const int32 five = passed_on * 5 / 16;
        this_row_[ahead][k] += passed_on - one - three - five;
        next_row_[behind][k] += three;
        next_row_[column][k] += five;
        next_row_[ahead][k] += one;
    }
}

}  // namespace kirto
