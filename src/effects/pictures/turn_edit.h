#pragma once

#include "base/core_text.h"
#include "effects/pictures/picture_edit.h"
#include "effects/pictures/turn_picture.h"

namespace kirto {

// Turns the canvas with all that is on it. What lies beyond it, and might come to lie left of it or
// above, is cut off; a frame that has nothing on it becomes a transparent pixel in its corner.
class TurnEdit : public PictureEdit {
  public:
    explicit TurnEdit(Turn turn) : turn_(turn) {}

    PicturePlan PlanOf(const Animation& animation, int32 position) const override;
    std::shared_ptr<const Picture> Make(const Picture& picture, const PictureVariant& variant,
                                        const std::shared_ptr<PixelBudget>& budget,
                                        const Work& work) const override;
    void SetCanvas(Animation& animation) const override;
    const char* Status() const override {
        return CoreText::Later("Status: turning frame %1 of %2...");
    }

  private:
    const Turn turn_;
};

}  // namespace kirto
