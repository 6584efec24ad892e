#pragma once

#include <memory>
#include <utility>

#include "effects/pictures/map_colors.h"
#include "effects/pictures/picture_edit.h"

namespace kirto {

// Maps the colors of frames.
class ColorEdit : public PictureEdit {
  public:
    // status: a literal, as in PictureEdit::Status.
    ColorEdit(std::unique_ptr<const ColorMap> map, const char* status)
        : map_(std::move(map)), status_(status) {}

    PicturePlan PlanOf(const Animation& animation, int32 position) const override;
    std::shared_ptr<const Picture> Make(const Picture& picture, const PictureVariant& variant,
                                        const std::shared_ptr<PixelBudget>& budget,
                                        const Work& work) const override;
    bool MakesColors() const override { return true; }
    const char* Status() const override { return status_; }

  private:
    const std::unique_ptr<const ColorMap> map_;
    const char* const status_;
};

}  // namespace kirto
