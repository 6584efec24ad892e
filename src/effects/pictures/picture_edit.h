#pragma once

#include <array>
#include <memory>

#include "animation/animation.h"
#include "base/pixel_budget.h"
#include "base/work.h"
#include "picture/picture.h"

namespace kirto {

// What tells apart the pictures that an edit makes of one picture, in whatever way the edit means
// it.
using PictureVariant = std::array<int32, 4>;

// What an edit makes of a frame.
struct PicturePlan {
    int32 x_offset = 0;  // 0 or more, as y_offset
    int32 y_offset = 0;
    bool keeps_picture = false;
    PictureVariant variant{};  // else
};

// An edit of pictures, one by one: for each frame a plan, and a picture for each variant of a
// picture, however many frames show it. Constant while it is carried out (EditPictures).
class PictureEdit {
  public:
    virtual ~PictureEdit() = default;

    // The frame has a picture with rows, and the animation a canvas.
    virtual PicturePlan PlanOf(const Animation& animation, int32 position) const = 0;
    // A pure function, on any thread. Null when memory is short or the work was stopped; may throw
    // std::bad_alloc.
    virtual std::shared_ptr<const Picture> Make(const Picture& picture,
                                                const PictureVariant& variant,
                                                const std::shared_ptr<PixelBudget>& budget,
                                                const Work& work) const = 0;
    // The canvas after the edit.
    virtual void SetCanvas(Animation&) const {}
    // Whether pictures get colors that they did not have: optimal palettes are made anew then.
    virtual bool MakesColors() const { return false; }
    // "Status: resizing frame %1 of %2...", for CoreText.
    virtual const char* Status() const = 0;
};

}  // namespace kirto
