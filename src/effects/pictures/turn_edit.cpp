#include "effects/pictures/turn_edit.h"

#include <utility>

#include "effects/pictures/cut_plan.h"

namespace kirto {

PicturePlan TurnEdit::PlanOf(const Animation& animation, int32 position) const {
    const Frame& frame = *animation.frames.At(position);
    PicturePlan plan = PlanToCut(frame, CanvasOf(animation));
    const PlaneRect left = Common(RectOf(frame), CanvasOf(animation));
    if (!left.Empty()) {
        const PlaneRect turned = Turned(left, turn_, animation.width, animation.height);
        plan.x_offset = turned.left;
        plan.y_offset = turned.top;
    }
    plan.keeps_picture = false;
    return plan;
}

std::shared_ptr<const Picture> TurnEdit::Make(const Picture& picture, const PictureVariant& variant,
                                              const std::shared_ptr<PixelBudget>& budget,
                                              const Work& work) const {
    const std::shared_ptr<const Picture> cut = CutToVariant(picture, variant, budget, work);
    return cut ? TurnPicture(*cut, turn_, budget, work) : nullptr;
}

void TurnEdit::SetCanvas(Animation& animation) const {
    if (SwapsSides(turn_)) std::swap(animation.width, animation.height);
}

}  // namespace kirto
