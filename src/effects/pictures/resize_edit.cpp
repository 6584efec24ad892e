#include "effects/pictures/resize_edit.h"

#include <algorithm>

namespace kirto {

namespace {

constexpr int64 kFarthestEdge = int64{1} << 30;

}  // namespace

ResizeEdit::ResizeEdit(const Animation& before, int32 width, int32 height, ScaleFilter filter)
    : across_{before.width, width}, down_{before.height, height}, filter_(filter) {}

// Rounded to the nearest, up from halfway.
int32 ResizeEdit::Scale::EdgeOf(int64 edge) const {
    const int64 scaled = (2 * edge * after + before) / (2 * int64{before});
    return static_cast<int32>(std::min(scaled, kFarthestEdge));
}

AxisPlan ResizeEdit::Scale::PlanOf(int32 offset, int32 length) const {
    AxisPlan plan;
    plan.step = static_cast<double>(before) / after;
    plan.start = EdgeOf(offset) * plan.step - offset;
    plan.source = length;
    plan.target =
        std::clamp(EdgeOf(int64{offset} + length) - EdgeOf(offset), 1, kMostPixelsOfASide);
    return plan;
}

PicturePlan ResizeEdit::PlanOf(const Animation& animation, int32 position) const {
    const FramePointer frame = animation.frames.At(position);
    PicturePlan plan;
    plan.x_offset = across_.EdgeOf(frame->x_offset);
    plan.y_offset = down_.EdgeOf(frame->y_offset);
    plan.keeps_picture = across_.before == across_.after && down_.before == down_.after;
    plan.variant = {frame->x_offset, frame->y_offset};
    return plan;
}

std::shared_ptr<const Picture> ResizeEdit::Make(const Picture& picture,
                                                const PictureVariant& variant,
                                                const std::shared_ptr<PixelBudget>& budget,
                                                const Work& work) const {
    ScalePlan plan;
    plan.across = across_.PlanOf(variant[0], picture.Width());
    plan.down = down_.PlanOf(variant[1], picture.Height());
    plan.filter = filter_;
    return ScalePicture(picture, plan, budget, work);
}

void ResizeEdit::SetCanvas(Animation& animation) const {
    animation.width = across_.after;
    animation.height = down_.after;
}

}  // namespace kirto
