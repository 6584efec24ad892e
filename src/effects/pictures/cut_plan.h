// What is common to the edits that cut frames.
#pragma once

#include "animation/animation.h"
#include "effects/pictures/cut_picture.h"
#include "effects/pictures/picture_edit.h"

namespace kirto {

// Where the frame's picture is on the canvas.
PlaneRect RectOf(const Frame& frame);
PlaneRect CanvasOf(const Animation& animation);

// The frame cut to a part of the plane, which becomes its new origin: the variant is what is left
// of the picture, for CutToVariant. Of a frame that has nothing there a transparent pixel at the
// origin is left, which keeps its time.
PicturePlan PlanToCut(const Frame& frame, const PlaneRect& part);
std::shared_ptr<const Picture> CutToVariant(const Picture& picture, const PictureVariant& variant,
                                            const std::shared_ptr<PixelBudget>& budget,
                                            const Work& work);

}  // namespace kirto
