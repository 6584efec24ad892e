// What an animation shows, frame by frame, worked out pixel by pixel.
#pragma once

#include <vector>

#include "animation/animation.h"
#include "support/random_document.h"
#include "support/test_support.h"

namespace kirto::test {

// A screen: row by row, 0xFFRRGGBB, or 0 where nothing is shown.
using ShownPixels = std::vector<uint32>;

struct ShownFrame {
    ShownPixels pixels;
    int32 delay = 0;       // hundredths of a second
    bool promised = true;  // 256 colors do for what is new in it, and in all that it builds on
    bool operator==(const ShownFrame& other) const {
        return pixels == other.pixels && delay == other.delay;
    }
};

// What becomes of pixels with alpha.
struct ShownAlpha {
    int32 threshold = 128;    // pixels of less alpha show nothing
    uint32 matte = 0xFFFFFF;  // what the others are laid on: 0xRRGGBB
};

// What each frame shows on a screen as large as the animation. Where frames are alike the first
// lasts as long as all of them, unless one lasts less than 2 hundredths.
std::vector<ShownFrame> ShownFrames(const Animation& animation, const ShownAlpha& how = {});

// Fills an empty document with frames such as faithful saving has to deal with: each is new, or the
// one before with a few rectangles painted over, cleared or shifted; with offsets, alpha,
// duplicates and 1 to 5000 colors. Pauses are whole hundredths.
void FillWithScenes(ChoiceSource& choices, int32 max_side, AnimationDocument& document);

}  // namespace kirto::test
