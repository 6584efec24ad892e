// How an animation is to be written, image by image: what planning makes and encoding takes.
#pragma once

#include <memory>
#include <vector>

#include "animation/gif_source.h"
#include "base/types.h"
#include "color/color_values.h"
#include "formats/faithful/screen.h"
#include "picture/disposal.h"
#include "picture/pixel_rect.h"

namespace kirto {

// What is on the screen before an image: what an earlier one shows, less a rectangle.
struct Backdrop {
    int32 plan = -1;  // the earlier one's position; -1: nothing is there
    PixelRect cleared;

    bool operator==(const Backdrop&) const = default;
};

// One image of the file.
struct FramePlan {
    ScreenImage shown;  // with the image, the screen shows this
    Backdrop below;
    PixelRect rect;  // of the image, all of it on the screen and not empty
    Disposal disposal = Disposal::kKeep;
    int32 delay = 0;  // hundredths of a second, up to 65535
    // The image is written as it was read; null: it is made.
    std::shared_ptr<const GifSource> source;
    // Of an image that is made: the colors of the pixels that differ from what is below, with their
    // numbers, by falling number.
    std::vector<ColorValues::Item> colors;
    bool skips = false;  // pixels of the rectangle stay as they are
};

using FramePlans = std::vector<FramePlan>;

// What the image leaves for the next one.
Backdrop BackdropAfter(const FramePlans& plans, int32 plan);
// The same as pixels, in a rectangle of the screen.
ScreenPixels ShowBackdrop(const Screen& screen, const FramePlans& plans, const Backdrop& backdrop,
                          const PixelRect& rect);

}  // namespace kirto
