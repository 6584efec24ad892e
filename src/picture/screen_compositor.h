#pragma once

#include <memory>
#include <utility>

#include "base/types.h"
#include "picture/disposal.h"
#include "picture/index_painter.h"
#include "picture/picture.h"
#include "picture/pixel_rect.h"

namespace kirto {

// The screen on which a player shows an animation: every image is drawn over what the ones before
// have left of it. It starts transparent, which is a pixel of zeros. A value: a copy goes on from
// where the original is. A picture costs what its image changes. Used by one thread.
class ScreenCompositor {
  public:
    // In pixels, above 0. The budget, if any, counts the pictures.
    ScreenCompositor(int32 width, int32 height, std::shared_ptr<PixelBudget> budget);

    int32 Width() const { return base_->Width(); }
    int32 Height() const { return base_->Height(); }

    // What the screen shows with the image on it. disposal: what becomes of the image afterwards.
    // Null when memory is short; nothing has changed then.
    std::shared_ptr<const Picture> Draw(const IndexImage& image, Disposal disposal);

  private:
    std::shared_ptr<const Picture> Disposed();

    IndexPainter painter_;
    std::shared_ptr<const Picture> base_;   // below the last image
    std::shared_ptr<const Picture> shown_;  // with it
    PixelRect last_;                        // where it is
    Disposal disposal_ = Disposal::kNone;   // of it
};

}  // namespace kirto
