#include "effects/pictures/crop_edit.h"

#include "effects/pictures/cut_plan.h"

namespace kirto {

namespace {

// What lies before the anchored canvas. third: 0 to 2, of the anchor along this axis.
int32 StartOf(int32 before, int32 after, int32 third) {
    const int32 difference = before - after;
    return third == 0 ? 0 : third == 1 ? difference / 2 : difference;
}

}  // namespace

PlaneRect AnchoredCanvas(const Animation& animation, int32 width, int32 height, int32 anchor) {
    return {StartOf(animation.width, width, anchor % 3),
            StartOf(animation.height, height, anchor / 3), width, height};
}

PicturePlan CropEdit::PlanOf(const Animation& animation, int32 position) const {
    return PlanToCut(*animation.frames.At(position), part_);
}

std::shared_ptr<const Picture> CropEdit::Make(const Picture& picture, const PictureVariant& variant,
                                              const std::shared_ptr<PixelBudget>& budget,
                                              const Work& work) const {
    return CutToVariant(picture, variant, budget, work);
}

void CropEdit::SetCanvas(Animation& animation) const {
    animation.width = part_.width;
    animation.height = part_.height;
}

}  // namespace kirto
