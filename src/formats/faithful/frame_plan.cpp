#include "formats/faithful/frame_plan.h"

namespace kirto {

Backdrop BackdropAfter(const FramePlans& plans, int32 plan) {
    const FramePlan& before = plans[static_cast<size_t>(plan)];
    switch (before.disposal) {
        case Disposal::kBackground:
            return {plan, before.rect};
        case Disposal::kPrevious:
            return before.below;
        case Disposal::kNone:
        case Disposal::kKeep:
            break;
    }
    return {plan, {}};
}

ScreenPixels ShowBackdrop(const Screen& screen, const FramePlans& plans, const Backdrop& backdrop) {
    if (backdrop.plan < 0) return screen.Empty();
    ScreenPixels pixels = screen.Show(plans[static_cast<size_t>(backdrop.plan)].shown);
    screen.Clear(backdrop.cleared, &pixels);
    return pixels;
}

}  // namespace kirto
