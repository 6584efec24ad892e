#include "effects/pictures/cut_plan.h"

namespace kirto {

namespace {

// A pixel that no picture has.
constexpr PictureVariant kOutside = {-1, -1, 1, 1};

}  // namespace

PlaneRect RectOf(const Frame& frame) {
    return {frame.x_offset, frame.y_offset, frame.bitmap->Width(), frame.bitmap->Height()};
}

PlaneRect CanvasOf(const Animation& animation) {
    return {0, 0, animation.width, animation.height};
}

PicturePlan PlanToCut(const Frame& frame, const PlaneRect& part) {
    const PlaneRect rect = RectOf(frame);
    const PlaneRect left = Common(rect, part);
    PicturePlan plan;
    if (left.Empty()) {
        plan.variant = kOutside;
        return plan;
    }
    plan.x_offset = left.left - part.left;
    plan.y_offset = left.top - part.top;
    plan.keeps_picture = left == rect;
    plan.variant = {left.left - rect.left, left.top - rect.top, left.width, left.height};
    return plan;
}

std::shared_ptr<const Picture> CutToVariant(const Picture& picture, const PictureVariant& variant,
                                            const std::shared_ptr<PixelBudget>& budget,
                                            const Work& work) {
    return CutPicture(picture, {variant[0], variant[1], variant[2], variant[3]}, budget, work);
}

}  // namespace kirto
