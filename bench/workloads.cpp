#include "workloads.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_map>

namespace kirto::bench {

namespace {

constexpr uint8 kTransparent = 255;

constexpr Workload kWorkloads[] = {
    {"photo", 640, 480, 100, 15, PaintPhoto, Reduction::kDithered},
    {"noise", 1920, 1080, 24, 3, PaintNoise},
    {"flat", 1920, 1080, 120, 12, PaintFlat},
    {"flat-part", 1920, 1080, 40, 12, PaintFlat},
    {"sprites", 128, 128, 3000, 400, PaintSprites},
    {"screen", 800, 600, 60, 15, PaintScreen},
    {"changes", 800, 600, 60, 15, PaintScreen, Reduction::kDifferences},
    {"scene", 640, 480, 200, 40, PaintScene, Reduction::kExact, true},
    // For growth, for inserting into a long list, and for the editor.
    {"frames10", 32, 32, 10, 10, PaintSprites},
    {"frames100", 32, 32, 100, 100, PaintSprites},
    {"frames1000", 32, 32, 1000, 1000, PaintSprites},
    {"frames3000", 128, 128, 3000, 3000, PaintSprites},
    {"frames10000", 32, 32, 10000, 10000, PaintSprites},
};

uint32 KeyOf(rgb_color color) {
    return uint32{color.red} << 16 | uint32{color.green} << 8 | color.blue;
}

// Numbers colors in the order in which they are met.
class ColorNumbers {
  public:
    explicit ColorNumbers(std::array<rgb_color, 256>& colors) : colors_(colors) {}

    uint8 NumberOf(rgb_color color) {
        const uint32 key = KeyOf(color);
        if (key == last_key_) return last_;
        const auto [entry, added] = numbers_.try_emplace(key, static_cast<uint8>(numbers_.size()));
        if (numbers_.size() > colors_.size()) std::abort();
        if (added) colors_[entry->second] = color;
        last_key_ = key;
        last_ = entry->second;
        return last_;
    }

    size_t Count() const { return numbers_.size(); }

  private:
    std::array<rgb_color, 256>& colors_;
    std::unordered_map<uint32, uint8> numbers_;
    uint32 last_key_ = ~uint32{0};
    uint8 last_ = 0;
};

// Diffuses errors in whole numbers, sixteenths of a level, one color component after the other.
class CubeDither {
  public:
    static constexpr int32 kLevels[3] = {6, 7, 6};  // red, green, blue

    explicit CubeDither(int32 width) {
        for (auto& row : errors_)
            row.assign(static_cast<size_t>(width) + 2, 0);
    }

    static void SetColors(std::array<rgb_color, 256>& colors) {
        for (int32 i = 0; i < kLevels[0] * kLevels[1] * kLevels[2]; ++i) {
            const int32 red = i / (kLevels[1] * kLevels[2]);
            const int32 green = i / kLevels[2] % kLevels[1];
            const int32 blue = i % kLevels[2];
            colors[static_cast<size_t>(i)] = {Value(0, red), Value(1, green), Value(2, blue), 255};
        }
    }

    void StartRow() { ahead_ = {}; }

    uint8 IndexOf(rgb_color color, int32 x) {
        const int32 components[3] = {color.red, color.green, color.blue};
        int32 index = 0;
        for (size_t i = 0; i < 3; ++i)
            index = index * kLevels[i] + LevelOf(i, components[i], static_cast<size_t>(x) + 1);
        return static_cast<uint8>(index);
    }

  private:
    static uint8 Value(size_t component, int32 level) {
        return static_cast<uint8>(level * 255 / (kLevels[component] - 1));
    }

    // errors[column] is what the row above left for this pixel; what is left for the row below goes
    // into the columns that have been read.
    int32 LevelOf(size_t component, int32 value, size_t column) {
        std::vector<int32>& errors = errors_[component];
        const int32 wanted =
            std::clamp(value + (ahead_[component].next + errors[column]) / 16, 0, 255);
        const int32 steps = kLevels[component] - 1;
        const int32 level = (wanted * steps + 127) / 255;
        const int32 error = wanted - Value(component, level);
        errors[column - 1] += 3 * error;
        errors[column] = 5 * error + ahead_[component].below;
        ahead_[component] = {7 * error, error};
        return level;
    }

    struct Ahead {
        int32 next = 0;   // for the next pixel of the row
        int32 below = 0;  // for the pixel below that
    };
    std::array<Ahead, 3> ahead_{};
    std::array<std::vector<int32>, 3> errors_;
};

IndexedImage EmptyImage(const Workload& workload) {
    IndexedImage image;
    image.width = workload.width;
    image.height = workload.height;
    image.indices.reserve(static_cast<size_t>(image.width) * static_cast<size_t>(image.height));
    return image;
}

IndexedImage DrawExact(const Workload& workload, int32 step, ColorNumbers& numbers) {
    IndexedImage image = EmptyImage(workload);
    for (int32 y = 0; y < image.height; ++y) {
        for (int32 x = 0; x < image.width; ++x)
            image.indices.push_back(numbers.NumberOf(workload.painter(x, y, step)));
    }
    return image;
}

IndexedImage DrawDithered(const Workload& workload, int32 step) {
    IndexedImage image = EmptyImage(workload);
    CubeDither dither(image.width);
    for (int32 y = 0; y < image.height; ++y) {
        dither.StartRow();
        for (int32 x = 0; x < image.width; ++x)
            image.indices.push_back(dither.IndexOf(workload.painter(x, y, step), x));
    }
    return image;
}

// The part of after that differs from before; its first pixel where nothing does.
IndexedImage Changes(const IndexedImage& before, const IndexedImage& after) {
    int32 left = after.width, top = after.height, right = 0, bottom = 0;
    const auto at = [&after](int32 x, int32 y) {
        return static_cast<size_t>(y) * static_cast<size_t>(after.width) + static_cast<size_t>(x);
    };
    for (int32 y = 0; y < after.height; ++y) {
        for (int32 x = 0; x < after.width; ++x) {
            if (before.indices[at(x, y)] == after.indices[at(x, y)]) continue;
            left = std::min(left, x);
            top = std::min(top, y);
            right = std::max(right, x + 1);
            bottom = std::max(bottom, y + 1);
        }
    }
    if (right == 0) left = top = 0, right = bottom = 1;
    IndexedImage changes{left, top, right - left, bottom - top, kTransparent, {}};
    for (int32 y = top; y < bottom; ++y) {
        for (int32 x = left; x < right; ++x) {
            const uint8 index = after.indices[at(x, y)];
            changes.indices.push_back(before.indices[at(x, y)] == index ? kTransparent : index);
        }
    }
    return changes;
}

}  // namespace

std::span<const Workload> Workloads() {
    return kWorkloads;
}

IndexedAnimation Draw(const Workload& workload, int32 frames) {
    IndexedAnimation animation;
    animation.width = workload.width;
    animation.height = workload.height;
    if (workload.reduction == Reduction::kDithered) CubeDither::SetColors(animation.colors);
    ColorNumbers numbers(animation.colors);
    IndexedImage before;
    for (int32 step = 0; step < frames; ++step) {
        if (workload.reduction == Reduction::kDithered) {
            animation.images.push_back(DrawDithered(workload, step));
            continue;
        }
        IndexedImage image = DrawExact(workload, step, numbers);
        const bool cropped = workload.reduction == Reduction::kDifferences && step > 0;
        animation.images.push_back(cropped ? Changes(before, image) : image);
        before = std::move(image);
    }
    const bool transparent_used = numbers.Count() > kTransparent;
    if (workload.reduction == Reduction::kDifferences && transparent_used) std::abort();
    return animation;
}

}  // namespace kirto::bench
