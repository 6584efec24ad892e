// Animated PNG and WebP files, made from what each frame is to be.
#pragma once

#include <vector>

#include "base/types.h"

namespace kirto::test {

struct AnimatedImageFile {
    enum class Dispose : uint8 { kNone, kBackground, kPrevious };

    struct Image {
        int32 x = 0;
        int32 y = 0;
        int32 width = 1;
        int32 height = 1;
        std::vector<uint32> pixels;  // 0xAARRGGBB, row by row
        int32 milliseconds = 100;
        Dispose dispose = Dispose::kNone;  // WebP knows no kPrevious
        bool over = false;
    };

    int32 width = 1;
    int32 height = 1;
    int32 plays = 0;  // 0: for ever
    std::vector<Image> frames;

    // With a still image in front that is no frame where still is set.
    std::vector<uint8> Apng(bool still = false) const;
    // x and y of every frame must be even.
    std::vector<uint8> Webp() const;

    // What a viewer shows after each frame, worked out pixel by pixel; what is transparent is 0.
    // Pixels that are put over others have alpha 0 or 255.
    std::vector<std::vector<uint32>> Shown() const;
};

// A sound file for either format: frames of any size within the canvas, every disposal, pixels of
// any alpha where they take the place of others. The same for the same seed.
AnimatedImageFile RandomAnimatedImageFile(uint32 seed, bool webp);

}  // namespace kirto::test
