#include "formats/faithful/frame_plan.h"

#include <algorithm>

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

ScreenPixels ShowBackdrop(const Screen& screen, const FramePlans& plans, const Backdrop& backdrop,
                          const PixelRect& rect) {
    const ScreenImage image =
        backdrop.plan < 0 ? ScreenImage() : plans[static_cast<size_t>(backdrop.plan)].shown;
    ScreenPixels pixels = screen.ShowPart(image, rect);
    const PixelRect cleared = Common(backdrop.cleared, rect);
    for (int32 y = cleared.top; y < cleared.top + cleared.height; ++y) {
        const auto row = static_cast<ptrdiff_t>(y - rect.top) * rect.width;
        std::fill_n(pixels.begin() + row + (cleared.left - rect.left), cleared.width, kNothing);
    }
    return pixels;
}

}  // namespace kirto
