#include "effects/pictures/fit_edit.h"

#include <algorithm>

#include "effects/pictures/cut_plan.h"

namespace kirto {

namespace {

// A side that is to the frame's as the canvas's other side to the frame's other one.
int32 Proportional(int32 side, int32 other_canvas, int32 other_side) {
    const int64 scaled = (2 * int64{side} * other_canvas + other_side) / (2 * int64{other_side});
    return static_cast<int32>(std::max(scaled, int64{1}));
}

PicturePlan PlanToScale(const PlaneRect& rect, const PlaneRect& canvas) {
    const bool wide = int64{rect.width} * canvas.height >= int64{rect.height} * canvas.width;
    const int32 width =
        wide ? canvas.width
             : std::min(Proportional(rect.width, canvas.height, rect.height), canvas.width);
    const int32 height =
        wide ? std::min(Proportional(rect.height, canvas.width, rect.width), canvas.height)
             : canvas.height;
    PicturePlan plan;
    plan.x_offset = (canvas.width - width) / 2;
    plan.y_offset = (canvas.height - height) / 2;
    plan.keeps_picture = width == rect.width && height == rect.height;
    plan.variant = {width, height};
    return plan;
}

PicturePlan PlanToPad(const PlaneRect& rect, const PlaneRect& canvas) {
    PicturePlan plan;
    plan.keeps_picture = rect == canvas;
    plan.variant = {-rect.left, -rect.top, canvas.width, canvas.height};
    return plan;
}

}  // namespace

PicturePlan FitEdit::PlanOf(const Animation& animation, int32 position) const {
    const Frame& frame = *animation.frames.At(position);
    const PlaneRect canvas = CanvasOf(animation);
    switch (fit_) {
        case Fit::kScale:
            return PlanToScale(RectOf(frame), canvas);
        case Fit::kPad:
            return PlanToPad(RectOf(frame), canvas);
        case Fit::kCrop:
            break;
    }
    return PlanToCut(frame, canvas);
}

std::shared_ptr<const Picture> FitEdit::Make(const Picture& picture, const PictureVariant& variant,
                                             const std::shared_ptr<PixelBudget>& budget,
                                             const Work& work) const {
    if (fit_ != Fit::kScale) return CutToVariant(picture, variant, budget, work);
    if (std::max(variant[0], variant[1]) > kMostPixelsOfASide) return nullptr;
    return ScalePicture(picture,
                        ScaleTo(picture.Width(), picture.Height(), variant[0], variant[1], filter_),
                        budget, work);
}

}  // namespace kirto
