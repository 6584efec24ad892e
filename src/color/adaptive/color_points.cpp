#include "color/adaptive/color_points.h"

#include <algorithm>

namespace kirto {

namespace {

constexpr size_t kMostSingleColors = 1 << 15;
constexpr int32 kCellBits = 6;  // of each component
constexpr size_t kCells = size_t{1} << 3 * kCellBits;
constexpr size_t kColorsAtOnce = 1 << 16;  // between two looks at the work

struct Cell {
    uint64 sums[3];
    uint64 pixels;
};

size_t CellOf(const ColorComponents& color) {
    size_t cell = 0;
    for (const int32 component : color)
        cell = cell << kCellBits | static_cast<size_t>(component >> (8 - kCellBits));
    return cell;
}

ColorPoint MeanOf(const Cell& cell) {
    ColorPoint point;
    for (size_t i = 0; i < 3; ++i) {
        const uint64 steps = cell.sums[i] * ColorPoint::kSteps + cell.pixels / 2;
        point.color[i] = static_cast<int32>(steps / cell.pixels);
    }
    point.pixels = cell.pixels;
    return point;
}

// False when the work was stopped.
bool AddTo(Cell* cells, std::span<const ColorValues::Item> colors, const Work* work) {
    for (size_t i = 0; i < colors.size(); ++i) {
        if (i % kColorsAtOnce == 0 && IsStopped(work)) return false;
        const ColorComponents color = ComponentsOf(colors[i].key);
        Cell& cell = cells[CellOf(color)];
        for (size_t k = 0; k < 3; ++k)
            cell.sums[k] += static_cast<uint64>(color[k]) * colors[i].value;
        cell.pixels += colors[i].value;
    }
    return true;
}

}  // namespace

ColorPoints::ColorPoints(std::span<const ColorValues::Item> colors, const Work* work) {
    if (colors.size() <= kMostSingleColors) {
        TakeEach(colors);
    } else {
        TakeMeans(colors, work);
    }
}

void ColorPoints::TakeEach(std::span<const ColorValues::Item> colors) {
    points_ = AllocateArray<ColorPoint>(colors.size());
    if (!points_) return;
    for (const ColorValues::Item& item : colors) {
        ColorPoint& point = points_[count_++];
        point.color = ComponentsOf(item.key);
        for (int32& component : point.color)
            component *= ColorPoint::kSteps;
        point.pixels = item.value;
    }
    std::sort(points_.get(), points_.get() + count_,
              [](const ColorPoint& a, const ColorPoint& b) { return a.color < b.color; });
}

void ColorPoints::TakeMeans(std::span<const ColorValues::Item> colors, const Work* work) {
    const AllocatedArray<Cell> cells = AllocateArray<Cell>(kCells);
    if (!cells || !AddTo(cells.get(), colors, work)) return;
    const auto is_used = [](const Cell& cell) { return cell.pixels != 0; };
    const std::span<const Cell> all(cells.get(), kCells);
    points_ = AllocateArray<ColorPoint>(static_cast<size_t>(std::ranges::count_if(all, is_used)));
    if (!points_) return;
    for (const Cell& cell : all) {
        if (is_used(cell)) points_[count_++] = MeanOf(cell);
    }
}

}  // namespace kirto
