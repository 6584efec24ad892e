#pragma once

#include "base/core_text.h"
#include "effects/pictures/picture_edit.h"
#include "effects/pictures/scale_picture.h"

namespace kirto {

enum class Fit {
    kScale,  // as large as the canvas has room for, in the middle of it; the ratio stays
    kPad,    // as large as the canvas, transparent where the frame was not, cut where it overhung
    kCrop,   // cut where it overhung
};

// Makes frames fit the canvas. One that has nothing on it becomes a transparent pixel in its corner
// when it is cut.
class FitEdit : public PictureEdit {
  public:
    // filter: of kScale.
    FitEdit(Fit fit, ScaleFilter filter) : fit_(fit), filter_(filter) {}

    PicturePlan PlanOf(const Animation& animation, int32 position) const override;
    std::shared_ptr<const Picture> Make(const Picture& picture, const PictureVariant& variant,
                                        const std::shared_ptr<PixelBudget>& budget,
                                        const Work& work) const override;
    bool MakesColors() const override {
        return fit_ == Fit::kScale && filter_ != ScaleFilter::kNearest;
    }
    const char* Status() const override {
        return CoreText::Later("Status: fitting frame %1 of %2...");
    }

  private:
    const Fit fit_;
    const ScaleFilter filter_;
};

}  // namespace kirto
