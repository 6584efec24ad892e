#pragma once

#include <memory>
#include <vector>

#include "base/core_text.h"
#include "effects/pictures/cut_picture.h"
#include "effects/pictures/picture_edit.h"

namespace kirto {

// How strong an overlay is from frame to frame of those that have it.
struct OverlayFading {
    int32 percent = 100;  // in full, 0 to 100
    int32 in = 0;         // frames that lead up to it, 0 or more
    int32 out = 0;        // frames that lead away from it
};

// Draws a picture over frames, mixing components by alpha. Frames that are too small for it grow,
// as far as the canvas reaches.
class OverlayEdit : public PictureEdit {
  public:
    // The picture has rows; its first pixel comes to lie at x,y of the canvas, which may be
    // outside. before, frames: what the edit is for.
    OverlayEdit(std::shared_ptr<const Picture> picture, int32 x, int32 y,
                const OverlayFading& fading, const Animation& before, const FrameSet& frames);

    PicturePlan PlanOf(const Animation& animation, int32 position) const override;
    std::shared_ptr<const Picture> Make(const Picture& picture, const PictureVariant& variant,
                                        const std::shared_ptr<PixelBudget>& budget,
                                        const Work& work) const override;
    bool MakesColors() const override { return true; }
    const char* Status() const override {
        return CoreText::Later("Status: drawing on frame %1 of %2...");
    }

  private:
    // 0 to 255.
    int32 StrengthAt(int32 position) const;

    const std::shared_ptr<const Picture> picture_;
    const PlaneRect rect_;     // of it, on the plane
    const PlaneRect visible_;  // of that, on the canvas
    const OverlayFading fading_;
    const std::vector<int32> positions_;
};

}  // namespace kirto
