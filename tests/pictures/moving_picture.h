#pragma once

#include <QImage>
#include <string>

#include "animation/animation.h"
#include "base/pixel_budget.h"

namespace kirto {

// Pictures of one size, one after the other, as an animated GIF of our own encoder.
class MovingPicture {
  public:
    // hundredths: of a second that it is shown.
    void Add(const QImage& picture, double hundredths);
    // False where there is no picture, or the file can't be written.
    bool Write(const std::string& path) const;

  private:
    Animation animation_;
    std::shared_ptr<PixelBudget> budget_ = std::make_shared<PixelBudget>();
};

}  // namespace kirto
