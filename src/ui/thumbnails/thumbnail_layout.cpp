#include "ui/thumbnails/thumbnail_layout.h"

#include <algorithm>

namespace kirto {

namespace {

constexpr float kFirstLeft = 4;
constexpr float kFirstTop = 5;

BRect RectangleAt(float left, float top, float width, float height) {
    return {left, top, left + width - 1, top + height - 1};
}

float WidthOf(int32 frame_width, int32 frame_height, int32 height) {
    if (frame_height < 1) return 0;
    return static_cast<float>(frame_width) * static_cast<float>(height) /
           static_cast<float>(frame_height);
}

bool Holds(const BRect& rectangle, BPoint point) {
    return point.x >= rectangle.left && point.x <= rectangle.right && point.y >= rectangle.top &&
           point.y <= rectangle.bottom;
}

}  // namespace

// Whether the frames have the sizes of those that are laid out. Only where they differ is looked.
bool ThumbnailLayout::IsOf(const FrameSequence& frames) const {
    const FrameSequence::Difference changed = frames.DifferenceTo(frames_);
    if (changed.end != changed.other_end) return false;
    for (int32 i = changed.begin; i < changed.end; ++i) {
        const FramePointer frame = frames.At(i);
        const FramePointer before = frames_.At(i);
        if (frame->width != before->width || frame->height != before->height) return false;
    }
    return true;
}

bool ThumbnailLayout::Update(const FrameSequence& frames, int32 height, float right_edge) {
    const bool same = height == height_ && right_edge == right_edge_ && IsOf(frames);
    frames_ = frames;
    if (same) return false;
    height_ = height;
    right_edge_ = right_edge;
    rectangles_.clear();
    float left = kFirstLeft;
    float top = kFirstTop;
    for (const FramePointer& frame : frames) {
        const float width = WidthOf(frame->width, frame->height, height);
        BRect rectangle = RectangleAt(left, top, width, static_cast<float>(height));
        if (!rectangles_.empty() && rectangle.right + 4 >= right_edge) {
            left = kFirstLeft;
            top += static_cast<float>(height + kGap);
            rectangle = RectangleAt(left, top, width, static_cast<float>(height));
        }
        rectangles_.push_back(rectangle);
        left = rectangle.right + 6;
    }
    return true;
}

// A greater height never takes fewer rows, so halving finds it.
int32 ThumbnailLayout::FittingHeight(const FrameSequence& frames, float right_edge,
                                     int32 view_height, int32 least, int32 most) {
    ThumbnailLayout layout;
    while (least < most) {
        const int32 middle = most - (most - least) / 2;
        layout.Update(frames, middle, right_edge);
        if (layout.ContentHeight() <= view_height && layout.IsWithin(right_edge)) {
            least = middle;
        } else {
            most = middle - 1;
        }
    }
    return least;
}

bool ThumbnailLayout::IsWithin(float right_edge) const {
    return std::all_of(rectangles_.begin(), rectangles_.end(),
                       [=](const BRect& each) { return each.right <= right_edge; });
}

BRect ThumbnailLayout::OutlineAt(int32 index) const {
    // One further out at the left and top than at the right and bottom, as the line is thick
    // towards the right and the bottom.
    const BRect rectangle = At(index);
    return {rectangle.left - 2, rectangle.top - 2, rectangle.right + 1, rectangle.bottom + 1};
}

std::pair<int32, int32> ThumbnailLayout::Between(float top, float bottom) const {
    const auto begin = rectangles_.begin();
    const auto first = std::partition_point(
        begin, rectangles_.end(),
        [top](const BRect& rectangle) { return rectangle.bottom + kGap < top; });
    const auto last = std::partition_point(
        first, rectangles_.end(),
        [bottom](const BRect& rectangle) { return rectangle.top - kGap <= bottom; });
    return {static_cast<int32>(first - begin), static_cast<int32>(last - begin)};
}

int32 ThumbnailLayout::ContentHeight() const {
    if (rectangles_.empty()) return 0;
    return static_cast<int32>(rectangles_.back().bottom) + kGap + 1;
}

int32 ThumbnailLayout::HitTest(BPoint point) const {
    const int32 count = std::min(Count(), kHitLimit);
    for (int32 i = 0; i < count; ++i) {
        if (Holds(At(i), point)) return i;
    }
    return -1;
}

FrameSet ThumbnailLayout::Touching(const BRect& rectangle) const {
    FrameSet touched;
    const auto [first, last] = Between(rectangle.top, rectangle.bottom);
    for (int32 i = first; i < last; ++i) {
        const BRect place = At(i);
        const bool beside = place.right < rectangle.left || place.left > rectangle.right ||
                            place.bottom < rectangle.top || place.top > rectangle.bottom;
        if (!beside) touched.Add({i, i});
    }
    return touched;
}

int32 ThumbnailLayout::DropPosition(BPoint point) const {
    const int32 count = std::min(Count(), kHitLimit);
    for (int32 i = 0; i < count; ++i) {
        BRect area = At(i);
        area.left -= kGap;
        area.top -= kGap;
        if (Holds(area, point)) return i;
        // Right of the row before.
        if (area.left == kFirstLeft - kGap && point.y < area.top) return i;
    }
    return Count();
}

BRect ThumbnailLayout::DropBar(int32 position) const {
    if (rectangles_.empty()) return {1, 2, 3, static_cast<float>(height_ + 1)};
    if (position >= Count()) {
        const BRect last = rectangles_.back();
        return {last.right + 2, last.top, last.right + 3, last.bottom};
    }
    const BRect next = At(position);
    return {next.left - 4, next.top, next.left - 2, next.bottom};
}

}  // namespace kirto
