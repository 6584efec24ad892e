// Image files that move: WebP and PNG files of several frames, which have any colors.
#pragma once

#include "base/types.h"
#include "kit/file.h"

namespace kirto {

enum class AnimatedImageFormat { kNone, kWebp, kApng };

// What the file's first bytes say it is; a WebP or PNG that does not move is none. Sets the
// position back to the start.
// Formats: the container specification of WebP, "Extended file format"; PNG specification, third
// edition, "11.3.6.1 acTL".
AnimatedImageFormat AnimatedImageFormatOf(BFile& file);

// What an animated image says of itself in front of its frames.
struct AnimatedImageHeader {
    int32 width = 0;  // of the canvas, pixels
    int32 height = 0;
    int32 frame_count = 0;  // as announced; there may be fewer
    int32 plays = 0;        // how often it is played; 0: for ever
};

// Draws the frames of an animated image, one after the other, each on a canvas that shows
// what a viewer shows. Used by one thread at a time.
class AnimatedImageReader {
  public:
    enum class Result {
        kFrame,
        kEnd,      // all frames have been drawn
        kBroken,   // what follows can't be drawn
        kNoMemory  // it is too large for the memory that is left
    };

    virtual ~AnimatedImageReader() = default;

    // kFrame when there are frames to draw. Called once, first.
    virtual Result ReadHeader(AnimatedImageHeader* header) = 0;
    // Draws the next frame.
    virtual Result Next() = 0;
    // A row of the canvas after kFrame: blue, green, red and alpha of each pixel, the colors not
    // multiplied by alpha. y: 0 to the height - 1.
    virtual const uint8* Row(int32 y) const = 0;
    // How long the frame is shown.
    virtual double Milliseconds() const = 0;
};

}  // namespace kirto
