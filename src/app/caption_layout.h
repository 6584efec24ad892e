// Texts on the canvas: how large they are and where they stand where nobody says so.
#pragma once

#include "animation/animation.h"

namespace kirto {

// Bounds of a text's size and of its outline, and the outline that it has otherwise; pixels.
inline constexpr int32 kSmallestCaption = 4;
inline constexpr int32 kLargestCaption = 1000;
inline constexpr int32 kWidestOutline = 50;
inline constexpr int32 kUsualOutline = 2;

// Nine places, counted row by row from the top left corner; this one is below, in the middle.
inline constexpr int32 kUsualCaptionAnchor = 7;

// Of a caption's first pixel on the canvas; outside where the caption is larger.
struct CaptionPlace {
    int32 x = 0;
    int32 y = 0;
};

// A size in pixels that can be read on the animation's canvas.
int32 UsualCaptionSize(const Animation& animation);

// Where a picture of that size stands on the animation's canvas: at an edge with a little room
// beside it, or in the middle. anchor: 0 to 8.
CaptionPlace PlaceCaption(const Animation& animation, int32 width, int32 height, int32 anchor);

}  // namespace kirto
