#include "effects/pictures/trim_area.h"

#include <algorithm>
#include <vector>

#include "effects/pictures/cut_plan.h"
#include "effects/pictures/pixel_order.h"

namespace kirto {

namespace {

using Row = std::vector<uint32>;

bool HasPixels(const Frame& frame) {
    return frame.bitmap && frame.bitmap->HasRows();
}

// Rows of the canvas with nothing but a frame on it, in one order of bytes for all.
class CanvasRows {
  public:
    CanvasRows(const Animation& animation, const Frame& frame)
        : frame_(frame),
          width_(animation.width),
          rect_(HasPixels(frame) ? Common(RectOf(frame), CanvasOf(animation)) : PlaneRect{}),
          pixels_(HasPixels(frame) ? static_cast<size_t>(frame.bitmap->Width()) : 0) {}

    const PlaneRect& Rect() const { return rect_; }
    const Row& At(int32 y) {
        row_.assign(static_cast<size_t>(width_), kTransparentPixel);
        if (y < rect_.top || y >= rect_.top + rect_.height) return row_;
        frame_.bitmap->ReadRow(y - frame_.y_offset, reinterpret_cast<uint8*>(pixels_.data()));
        const bool big_endian = IsBigEndian(frame_.bitmap->ColorSpace());
        for (int32 x = 0; x < rect_.width; ++x) {
            const ColorBytes color =
                ColorOf(pixels_[static_cast<size_t>(x + rect_.left - frame_.x_offset)], big_endian);
            if (color.alpha != 0) row_[static_cast<size_t>(rect_.left + x)] = PixelOf(color, false);
        }
        return row_;
    }
    // What row y is, for comparing: the same strip in the same place is the same row.
    const Strip* StripOf(int32 y) const {
        if (y < rect_.top || y >= rect_.top + rect_.height) return nullptr;
        const Picture& picture = *frame_.bitmap;
        return picture.AllStrips()[picture.StripAt(y - frame_.y_offset)].get();
    }

  private:
    const Frame& frame_;
    const int32 width_;
    const PlaneRect rect_;  // of the frame, on the canvas
    Row pixels_;
    Row row_;
};

// The row as a part of the canvas, from the first pixel that differs to the last.
PlaneRect Difference(const Row& a, const Row& b, int32 y) {
    const auto first = std::mismatch(a.begin(), a.end(), b.begin());
    if (first.first == a.end()) return {};
    const auto last = std::mismatch(a.rbegin(), a.rend(), b.rbegin());
    const int32 left = static_cast<int32>(first.first - a.begin());
    const int32 right = static_cast<int32>(last.first.base() - a.begin());
    return {left, y, right - left, 1};
}

// Whether both have the rows of a strip in the same place, if any.
bool ShareRow(const Frame& a, CanvasRows& a_rows, const Frame& b, CanvasRows& b_rows, int32 y) {
    const Strip* const strip = a_rows.StripOf(y);
    if (strip != b_rows.StripOf(y)) return false;
    if (!strip) return true;
    return a.x_offset == b.x_offset && a.y_offset == b.y_offset &&
           a.bitmap->ColorSpace() == b.bitmap->ColorSpace() &&
           a.bitmap->FirstRows()[a.bitmap->StripAt(y - a.y_offset)] ==
               b.bitmap->FirstRows()[b.bitmap->StripAt(y - b.y_offset)];
}

PlaneRect DifferenceOf(const Animation& animation, const Frame& a, const Frame& b,
                       const Work& work) {
    CanvasRows a_rows(animation, a);
    CanvasRows b_rows(animation, b);
    const PlaneRect both = Around(a_rows.Rect(), b_rows.Rect());
    PlaneRect area;
    for (int32 y = both.top; y < both.top + both.height && !work.StopRequested(); ++y) {
        if (ShareRow(a, a_rows, b, b_rows, y)) continue;
        area = Around(area, Difference(a_rows.At(y), b_rows.At(y), y));
    }
    return area;
}

}  // namespace

PlaneRect VisibleArea(const Animation& animation, Work& work) {
    const Frame none;
    PlaneRect area;
    int32 done = 0;
    for (const FramePointer& frame : animation.frames) {
        if (work.StopRequested()) break;
        work.Report(done++, animation.frames.Size());
        area = Around(area, DifferenceOf(animation, *frame, none, work));
    }
    return area;
}

PlaneRect ChangedArea(const Animation& animation, Work& work) {
    PlaneRect area;
    for (int32 i = 0; i + 1 < animation.frames.Size() && !work.StopRequested(); ++i) {
        work.Report(i, animation.frames.Size());
        const FramePointer frame = animation.frames.At(i);
        const FramePointer next = animation.frames.At(i + 1);
        const bool same = frame->bitmap == next->bitmap && frame->x_offset == next->x_offset &&
                          frame->y_offset == next->y_offset;
        if (!same) area = Around(area, DifferenceOf(animation, *frame, *next, work));
    }
    return area;
}

}  // namespace kirto
