#pragma once

#include "base/core_text.h"
#include "effects/pictures/cut_picture.h"
#include "effects/pictures/picture_edit.h"

namespace kirto {

// Where the animation stays in a canvas of another size: rows of three, from the top left.
inline constexpr int32 kAnchors = 9;

// The part of the plane that a canvas of that size takes which is anchored so. A side that grows or
// shrinks by an odd number has the lesser half of it at the left or top.
PlaneRect AnchoredCanvas(const Animation& animation, int32 width, int32 height, int32 anchor);

// Makes a part of the plane the canvas, which may reach beyond the canvas there was. Frames are cut
// to it; one that has nothing there becomes a transparent pixel in its corner.
class CropEdit : public PictureEdit {
  public:
    // part: not empty.
    explicit CropEdit(const PlaneRect& part) : part_(part) {}

    PicturePlan PlanOf(const Animation& animation, int32 position) const override;
    std::shared_ptr<const Picture> Make(const Picture& picture, const PictureVariant& variant,
                                        const std::shared_ptr<PixelBudget>& budget,
                                        const Work& work) const override;
    void SetCanvas(Animation& animation) const override;
    const char* Status() const override {
        return CoreText::Later("Status: cropping frame %1 of %2...");
    }

  private:
    const PlaneRect part_;
};

}  // namespace kirto
