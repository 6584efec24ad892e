#pragma once

#include "base/core_text.h"
#include "effects/pictures/cut_picture.h"
#include "effects/pictures/picture_edit.h"
#include "effects/pictures/scale_picture.h"

namespace kirto {

// Gives the canvas another size, and scales frames and offsets with it. The edges of a frame come
// to lie between the nearest pixels, one at least within it, and its pixels are those of the scaled
// canvas there: frames that fit together go on doing so. What is past kMostPixelsOfASide of a frame
// is cut off.
class ResizeEdit : public PictureEdit {
  public:
    // width, height: of the canvas, 1 to kMostPixelsOfASide. before: the animation that the edit is
    // for.
    ResizeEdit(const Animation& before, int32 width, int32 height, ScaleFilter filter);

    PicturePlan PlanOf(const Animation& animation, int32 position) const override;
    std::shared_ptr<const Picture> Make(const Picture& picture, const PictureVariant& variant,
                                        const std::shared_ptr<PixelBudget>& budget,
                                        const Work& work) const override;
    void SetCanvas(Animation& animation) const override;
    bool MakesColors() const override { return filter_ != ScaleFilter::kNearest; }
    const char* Status() const override {
        return CoreText::Later("Status: resizing frame %1 of %2...");
    }

  private:
    // One of the axes of the canvas.
    struct Scale {
        int32 before = 0;
        int32 after = 0;

        int32 EdgeOf(int64 edge) const;
        // Of a frame from that pixel on, so many pixels long.
        AxisPlan PlanOf(int32 offset, int32 length) const;
    };

    const Scale across_;
    const Scale down_;
    const ScaleFilter filter_;
};

}  // namespace kirto
