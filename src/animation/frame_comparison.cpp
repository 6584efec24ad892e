#include "animation/frame_comparison.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace kirto {

namespace {

// Pixels lie in memory as blue, green, red, alpha, but for a frame's in the other order.
uint8 AlphaOf(const uint8* pixel) {
    return pixel[3];
}

void TurnPixels(uint8* pixels, int32 count) {
    for (int32 x = 0; x < count; ++x, pixels += 4)
        std::reverse(pixels, pixels + 4);
}

int64 DistanceOf(const uint8* a, const uint8* b) {
    int64 sum = 0;
    for (size_t i = 0; i < 3; ++i)
        sum += std::abs(a[i] - b[i]);
    return sum;
}

void ComparePixel(const uint8* frame, const uint8* shown, int32 threshold,
                  PixelDifferences* differences) {
    const uint8 alpha = AlphaOf(frame);
    const bool has_color = AlphaOf(shown) >= FrameComparison::kHalf;
    if (alpha > threshold && !has_color) {
        ++differences->holes;
    } else if (alpha < threshold && has_color) {
        ++differences->filled;
    } else if (alpha == 255 && std::memcmp(frame, shown, 3) != 0) {
        ++differences->recolored;
        differences->distance += DistanceOf(frame, shown);
    }
}

int64 CountOpaque(const uint8* row, int32 begin, int32 end) {
    int64 count = 0;
    for (int32 x = begin; x < end; ++x)
        count += AlphaOf(row + static_cast<size_t>(x) * 4) >= FrameComparison::kHalf;
    return count;
}

// The strip that row y lies in, and as which of its rows; null past the picture's end. rows: no
// more than are left of the strip.
const Strip* StripAt(const Picture& picture, int32 y, int32* row, int32* rows) {
    if (y >= picture.Height() || !picture.HasRows()) return nullptr;
    const size_t at = picture.StripAt(y);
    const Strip* strip = picture.AllStrips()[at].get();
    *row = y - picture.FirstRows()[at];
    *rows = std::min(*rows, strip->Rows() - *row);
    return strip;
}

// Both have rows and are of the same size.
bool HaveSameRows(const Picture& a, const Picture& b) {
    const size_t bytes = static_cast<size_t>(a.Width()) * 4;
    std::vector<uint8> row_a(bytes);
    std::vector<uint8> row_b(bytes);
    for (int32 y = 0; y < a.Height();) {
        int32 rows = a.Height() - y;
        int32 in_a = 0;
        int32 in_b = 0;
        const Strip* const strip_a = StripAt(a, y, &in_a, &rows);
        const Strip* const strip_b = StripAt(b, y, &in_b, &rows);
        y += rows;
        if (strip_a == strip_b && in_a == in_b) continue;
        for (int32 i = 0; i < rows; ++i) {
            strip_a->Row(in_a + i).Expand(a.Width(), row_a.data());
            strip_b->Row(in_b + i).Expand(b.Width(), row_b.data());
            if (row_a != row_b) return false;
        }
    }
    return true;
}

}  // namespace

PixelDifferences& PixelDifferences::operator+=(const PixelDifferences& other) {
    compared += other.compared;
    filled += other.filled;
    outside += other.outside;
    holes += other.holes;
    recolored += other.recolored;
    distance += other.distance;
    return *this;
}

FrameComparison::FrameComparison(int32 width, int32 height, bool parts, const Work* work,
                                 int32 threshold)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      parts_(parts),
      work_(work),
      threshold_(threshold),
      frame_row_(static_cast<size_t>(width_) * 4),
      shown_row_(static_cast<size_t>(width_) * 4) {}

PixelDifferences FrameComparison::Compare(const Frame& frame, const Picture& shown) {
    PixelDifferences all;
    for (int32 y = 0; y < height_ && !IsStopped(work_);) {
        const Rows rows = RowsAt(frame, shown, y);
        const auto [known, is_new] = known_.try_emplace(rows);
        if (is_new) known->second = CompareRows(rows, frame.bitmap.get(), shown);
        all += known->second;
        y += rows.count;
    }
    return all;
}

// As many rows from y on as have one strip of both pictures in common. Above and below the frame
// nothing is wide.
FrameComparison::Rows FrameComparison::RowsAt(const Frame& frame, const Picture& shown,
                                              int32 y) const {
    Rows rows;
    rows.count = height_ - y;
    rows.shown_strip = StripAt(shown, y, &rows.shown_row, &rows.count);
    const int32 top = std::clamp(frame.y_offset, 0, height_);
    const int32 bottom = top + std::clamp(frame.height, 0, height_ - top);
    if (y < top) rows.count = std::min(rows.count, top - y);
    if (y < top || y >= bottom) return rows;
    rows.count = std::min(rows.count, bottom - y);
    rows.left = std::clamp(frame.x_offset, 0, width_);
    rows.width = std::clamp(frame.width, 0, width_ - rows.left);
    if (frame.bitmap)
        rows.frame_strip = StripAt(*frame.bitmap, y - top, &rows.frame_row, &rows.count);
    return rows;
}

PixelDifferences FrameComparison::CompareRows(const Rows& rows, const Picture* picture,
                                              const Picture& shown) {
    const int32 drawn = rows.frame_strip ? std::min(rows.width, picture->Width()) : 0;
    const bool turned = rows.frame_strip && IsBigEndian(picture->ColorSpace());
    // What no strip covers stays transparent.
    std::fill(shown_row_.begin(), shown_row_.end(), uint8{0});
    std::fill(frame_row_.begin(), frame_row_.end(), uint8{0});
    uint8* const frame_pixels = frame_row_.data() + static_cast<size_t>(rows.left) * 4;
    PixelDifferences result;
    for (int32 i = 0; i < rows.count && !IsStopped(work_); ++i) {
        if (rows.shown_strip) {
            const PixelRow row = rows.shown_strip->Row(rows.shown_row + i);
            row.Expand(std::min(width_, shown.Width()), shown_row_.data());
        }
        if (drawn > 0) rows.frame_strip->Row(rows.frame_row + i).Expand(drawn, frame_pixels);
        if (turned) TurnPixels(frame_pixels, drawn);
        CompareRow(rows.left, rows.left + rows.width, &result);
    }
    return result;
}

void FrameComparison::CompareRow(int32 left, int32 right, PixelDifferences* result) const {
    result->compared += parts_ ? right - left : width_;
    if (!parts_) {
        result->outside += CountOpaque(shown_row_.data(), 0, left);
        result->outside += CountOpaque(shown_row_.data(), right, width_);
    }
    const size_t begin = static_cast<size_t>(left) * 4;
    const size_t end = static_cast<size_t>(right) * 4;
    if (begin == end) return;
    if (std::memcmp(frame_row_.data() + begin, shown_row_.data() + begin, end - begin) == 0) return;
    for (size_t at = begin; at < end; at += 4)
        ComparePixel(frame_row_.data() + at, shown_row_.data() + at, threshold_, result);
}

namespace {

// Pictures of one size whose rows mean the same, or the same picture.
bool AreComparable(const Frame& a, const Frame& b) {
    if (a.x_offset != b.x_offset || a.y_offset != b.y_offset) return false;
    if (a.width != b.width || a.height != b.height) return false;
    if (a.bitmap == b.bitmap) return true;
    if (!a.bitmap || !b.bitmap || a.bitmap->Width() != b.bitmap->Width()) return false;
    if (a.bitmap->Height() != b.bitmap->Height() || !a.bitmap->HasRows()) return false;
    return b.bitmap->HasRows() && a.bitmap->ColorSpace() == b.bitmap->ColorSpace();
}

bool HaveSimilarRows(const Picture& a, const Picture& b, int32 tolerance) {
    std::vector<uint8> a_row(static_cast<size_t>(a.Width()) * 4);
    std::vector<uint8> b_row(a_row.size());
    for (int32 y = 0; y < a.Height(); ++y) {
        a.ReadRow(y, a_row.data());
        b.ReadRow(y, b_row.data());
        const bool similar =
            std::equal(a_row.begin(), a_row.end(), b_row.begin(), [=](uint8 one, uint8 other) {
                return std::abs(int32{one} - int32{other}) <= tolerance;
            });
        if (!similar) return false;
    }
    return true;
}

}  // namespace

bool ShowTheSame(const Frame& a, const Frame& b) {
    if (!AreComparable(a, b)) return false;
    return a.bitmap == b.bitmap || HaveSameRows(*a.bitmap, *b.bitmap);
}

bool ShowNearlyTheSame(const Frame& a, const Frame& b, int32 tolerance) {
    if (tolerance <= 0 || !AreComparable(a, b)) return ShowTheSame(a, b);
    return a.bitmap == b.bitmap || HaveSimilarRows(*a.bitmap, *b.bitmap, tolerance);
}

}  // namespace kirto
