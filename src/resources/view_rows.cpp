#include "resources/view_rows.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kirto {

namespace {

constexpr float kLeastIndent = 4;  // drawn pixels; less is how a hand draws

// An archive may hold anything; frames of no numbers count as lying at the origin.
std::vector<BRect> FiniteFrames(std::span<const BRect> frames) {
    std::vector<BRect> finite(frames.begin(), frames.end());
    for (BRect& frame : finite) {
        const float edges = frame.left + frame.top + frame.right + frame.bottom;
        if (!std::isfinite(edges)) frame = BRect(0, 0, 0, 0);
    }
    return finite;
}

// A row while it is being filled.
struct Row {
    ViewRow row;
    float left;
    float top;
    float bottom;
};

// True when the frame lies beside the row rather than below it: they share half their height.
bool IsBeside(const BRect& frame, const Row& row) {
    const float shared = std::min(frame.bottom, row.bottom) - std::max(frame.top, row.top);
    return shared > std::min(frame.Height(), row.bottom - row.top) / 2;
}

std::vector<Row> GroupedRows(std::span<const BRect> frames) {
    std::vector<size_t> order(frames.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](size_t a, size_t b) { return frames[a].top < frames[b].top; });
    std::vector<Row> rows;
    for (const size_t i : order) {
        const BRect& frame = frames[i];
        if (rows.empty() || !IsBeside(frame, rows.back())) {
            rows.push_back({{}, frame.left, frame.top, frame.bottom});
        }
        Row& row = rows.back();
        row.row.views.push_back(i);
        row.left = std::min(row.left, frame.left);
        row.bottom = std::max(row.bottom, frame.bottom);
    }
    for (Row& row : rows) {
        std::stable_sort(row.row.views.begin(), row.row.views.end(),
                         [&](size_t a, size_t b) { return frames[a].left < frames[b].left; });
    }
    return rows;
}

float LeftMargin(std::span<const BRect> frames) {
    float left = frames.empty() ? 0 : frames.front().left;
    for (const BRect& frame : frames) {
        left = std::min(left, frame.left);
    }
    return left;
}

}  // namespace

std::vector<ViewRow> RowsOf(std::span<const BRect> frames, float width) {
    const std::vector<BRect> finite = FiniteFrames(frames);
    const float margin = LeftMargin(finite);
    std::vector<ViewRow> rows;
    float above = 0;
    for (Row& row : GroupedRows(finite)) {
        row.row.at_right = row.left > width / 2;
        row.row.indented = !row.row.at_right && row.left > margin + kLeastIndent;
        row.row.apart = !rows.empty() && row.top - above >= (row.bottom - row.top) / 2;
        above = row.bottom;
        rows.push_back(std::move(row.row));
    }
    return rows;
}

bool ReachesRightMargin(const BRect& frame, std::span<const BRect> frames, float width) {
    return width - frame.right <= 2 * std::max(LeftMargin(frames), 0.0f);
}

}  // namespace kirto
