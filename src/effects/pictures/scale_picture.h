#pragma once

#include <memory>

#include "base/pixel_budget.h"
#include "base/work.h"
#include "effects/pictures/filter_axis.h"
#include "picture/picture.h"

namespace kirto {

struct ScalePlan {
    AxisPlan across;
    AxisPlan down;
    ScaleFilter filter = ScaleFilter::kLanczos;

    bool operator==(const ScalePlan&) const = default;
};

// The whole picture at that size.
ScalePlan ScaleTo(int32 source_width, int32 source_height, int32 width, int32 height,
                  ScaleFilter filter);

// The picture scaled by the plan, whose sources are its sides: first across, then down. Light is
// mixed, not components, and each pixel counts as much as its alpha says; components are rounded to
// the nearest, in steps of 1/65535 of light. Nearest keeps pixels as they are. A pure function, on
// any thread. Null when the picture has no rows, memory is short or the work was stopped.
std::shared_ptr<const Picture> ScalePicture(const Picture& picture, const ScalePlan& plan,
                                            const std::shared_ptr<PixelBudget>& budget,
                                            const Work& work);

}  // namespace kirto
