// Generating runs of frames that blend the current frame with a color or with a neighbor.
#pragma once

#include <memory>

#include "base/types.h"
#include "document/animation_document.h"

namespace kirto {

enum class FadeMode {
    kToColor,       // after the current frame, ending in the color
    kFromColor,     // before the current frame, starting with the color
    kToNext,        // between the current and the next frame
    kFromPrevious,  // between the previous and the current frame
};

// The share that the kernel is given for frame i of count: of the color (kToColor), of the current
// frame (all others).
float FadeFactor(FadeMode mode, int32 i, int32 count);

// What a fade is made of.
struct FadePlan {
    FadeMode mode;
    rgb_color color;
    FramePointer current;  // has pixels
    FramePointer other;    // the neighbor, with pixels; null for fades of a color
};

// The picture of new frame i of count, as large as the current frame. Null when memory is short or
// the work was stopped. Any thread.
std::shared_ptr<const Picture> FadePicture(const FadePlan& plan, int32 i, int32 count,
                                           std::shared_ptr<PixelBudget> budget, const Work& work);

// Inserts count new frames and marks the document modified. Without a current frame or the
// neighbor that the mode needs, nothing happens. Where the neighbor is smaller than the current
// frame, the current frame's pixels are kept; pictures are aligned at the top left. Runs on the
// application's thread. *name_base numbers the frames' names and grows by
// 100 after a fade that ran to its end; running out of memory is reported and ends the fade, the
// frames inserted so far stay. So they do when the document's work is stopped: false then.
bool Fade(AnimationDocument& document, FadeMode mode, int32 count, rgb_color color,
          int32* name_base);

}  // namespace kirto
