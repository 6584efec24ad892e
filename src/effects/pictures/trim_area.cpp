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
          rect_(HasPixels(frame) ? Common(RectOf(frame), CanvasOf(animation)) : PlaneRect{}),
          pixels_(HasPixels(frame) ? static_cast<size_t>(frame.bitmap->Width()) : 0) {}

    const PlaneRect& Rect() const { return rect_; }
    // The columns that the part has, of row y.
    const Row& At(int32 y, const PlaneRect& part) {
        row_.assign(static_cast<size_t>(part.width), kTransparentPixel);
        const PlaneRect seen = Common(rect_, {part.left, y, part.width, 1});
        if (seen.Empty()) return row_;
        frame_.bitmap->ReadRow(y - frame_.y_offset, reinterpret_cast<uint8*>(pixels_.data()));
        const bool big_endian = IsBigEndian(frame_.bitmap->ColorSpace());
        const uint32* const pixels = &pixels_[static_cast<size_t>(seen.left - frame_.x_offset)];
        uint32* const row = &row_[static_cast<size_t>(seen.left - part.left)];
        for (int32 x = 0; x < seen.width; ++x) {
            const ColorBytes color = ColorOf(pixels[x], big_endian);
            if (color.alpha != 0) row[x] = PixelOf(color, false);
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
    const PlaneRect rect_;  // of the frame, on the canvas
    Row pixels_;
    Row row_;
};

// What differs of two rows of a part, row y of the canvas.
PlaneRect Difference(const Row& a, const Row& b, const PlaneRect& part, int32 y) {
    const auto first = std::mismatch(a.begin(), a.end(), b.begin());
    if (first.first == a.end()) return {};
    const auto last = std::mismatch(a.rbegin(), a.rend(), b.rbegin());
    const int32 left = static_cast<int32>(first.first - a.begin());
    const int32 right = static_cast<int32>(last.first.base() - a.begin());
    return {part.left + left, y, right - left, 1};
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

// Looks at no more of the canvas than what the frames have on it.
PlaneRect DifferenceOf(const Animation& animation, const Frame& a, const Frame& b,
                       const Work& work) {
    CanvasRows a_rows(animation, a);
    CanvasRows b_rows(animation, b);
    PlaneRect area;
    const auto look_at = [&](const PlaneRect& part) {
        for (int32 y = part.top; y < part.top + part.height && !work.StopRequested(); ++y) {
            if (ShareRow(a, a_rows, b, b_rows, y)) continue;
            area = Around(area, Difference(a_rows.At(y, part), b_rows.At(y, part), part, y));
        }
    };
    const PlaneRect both = Common(a_rows.Rect(), b_rows.Rect());
    if (both != b_rows.Rect()) look_at(b_rows.Rect());
    if (both != a_rows.Rect() || both == b_rows.Rect()) look_at(a_rows.Rect());
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
