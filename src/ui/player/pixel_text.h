#pragma once

#include <QPoint>
#include <QString>

#include "animation/animation.h"

namespace kirto {

// What is at a pixel of the canvas in a frame: "#FF8000, index 17", where a save uses a palette
// with that very color; "transparent", or "#FF8000, alpha 128"; "no frame" beside the frame. For
// any thread.
QString PixelText(const Animation& animation, const Frame& frame, QPoint pixel);

}  // namespace kirto
