#include "effects/pictures/color_edit.h"

namespace kirto {

PicturePlan ColorEdit::PlanOf(const Animation& animation, int32 position) const {
    const FramePointer frame = animation.frames.At(position);
    PicturePlan plan;
    plan.x_offset = frame->x_offset;
    plan.y_offset = frame->y_offset;
    return plan;
}

std::shared_ptr<const Picture> ColorEdit::Make(const Picture& picture, const PictureVariant&,
                                               const std::shared_ptr<PixelBudget>& budget,
                                               const Work& work) const {
    return MapColors(picture, *map_, budget, work);
}

}  // namespace kirto
