#include "color/adaptive/adaptive_palette.h"

#include <algorithm>

#include "color/adaptive/color_clusters.h"
#include "color/adaptive/color_metric.h"
#include "color/adaptive/color_points.h"
#include "color/hash_item.h"

namespace kirto {

namespace {

rgb_color Opaque(rgb_color color) {
    color.alpha = 255;
    return color;
}

rgb_color ColorOf(const ColorComponents& components) {
    return {static_cast<uint8>(components[0]), static_cast<uint8>(components[1]),
            static_cast<uint8>(components[2]), 255};
}

ColorComponents StepsOf(rgb_color color) {
    return {color.red * ColorPoint::kSteps, color.green * ColorPoint::kSteps,
            color.blue * ColorPoint::kSteps};
}

// A point's steps rounded to levels.
rgb_color LevelsOf(ColorComponents steps) {
    for (int32& component : steps)
        component = (component + ColorPoint::kSteps / 2) / ColorPoint::kSteps;
    return ColorOf(steps);
}

}  // namespace

status_t AdaptivePalette::Make(std::span<const ColorValues::Item> colors, int32 entries,
                               std::span<const rgb_color> exact, const Work* work) {
    if (entries < 1 || entries > kMaxEntries) return B_BAD_VALUE;
    const size_t most = static_cast<size_t>(entries);
    AdaptivePalette made;
    for (const rgb_color& color : exact) {
        if (made.Contains(Opaque(color))) continue;
        if (made.count_ == most) return B_BAD_VALUE;
        made.Append(Opaque(color));
    }
    if (!made.AppendAll(colors, most)) {
        const status_t status = made.AppendMeans(colors, most, work);
        if (status != B_OK) return status;
    }
    *this = made;
    return B_OK;
}

bool AdaptivePalette::Contains(rgb_color color) const {
    return std::ranges::find(Colors(), color) != Colors().end();
}

void AdaptivePalette::Append(rgb_color color) {
    entries_[count_++] = color;
}

bool AdaptivePalette::AppendAll(std::span<const ColorValues::Item> colors, size_t entries) {
    const size_t first = count_;
    for (const ColorValues::Item& item : colors) {
        const rgb_color color = ColorOf(ComponentsOf(item.key));
        const std::span<const rgb_color> exact = Colors().first(first);
        if (std::ranges::find(exact, color) != exact.end()) continue;
        if (count_ == entries) {
            count_ = first;
            return false;
        }
        Append(color);
    }
    SortFrom(first);
    return true;
}

status_t AdaptivePalette::AppendMeans(std::span<const ColorValues::Item> colors, size_t entries,
                                      const Work* work) {
    lossless_ = false;
    const size_t first = count_;
    const ColorPoints points(colors, work);
    ColorClusters clusters(points.All(), work);
    if (IsStopped(work)) return B_CANCELED;
    if (points.All().empty() || !clusters.Ready()) return B_NO_MEMORY;
    ColorCenters centers;
    for (const rgb_color& color : Colors())
        centers.colors[centers.count++] = StepsOf(color);
    centers.fixed = first;
    if (!clusters.Find(&centers, entries)) return B_CANCELED;
    for (size_t i = first; i < centers.count; ++i) {
        const rgb_color color = LevelsOf(centers.colors[i]);
        if (!Contains(color)) Append(color);
    }
    SortFrom(first);
    return B_OK;
}

void AdaptivePalette::SortFrom(size_t first) {
    const std::span<rgb_color> others(entries_.data() + first, count_ - first);
    std::ranges::sort(others, {}, [](rgb_color color) {  //
        return ColorKey(color.red, color.green, color.blue);
    });
}

}  // namespace kirto
