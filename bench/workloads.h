// The animations that the benchmarks run on, made from painters: the same on every machine, and
// made without the code that is measured.
#pragma once

#include <span>

#include "base/types.h"
#include "indexed_animation.h"
#include "painters.h"

namespace kirto::bench {

// How the pixels of a painter become palette indices.
enum class Reduction {
    kExact,        // the painter has at most 256 colors
    kDifferences,  // at most 255; later frames are cropped to what changed, the rest transparent
    kDithered,     // to a cube of 6 x 7 x 6 colors, after Floyd and Steinberg
};

struct Workload {
    const char* name;
    int32 width;  // pixels
    int32 height;
    int32 frames;
    int32 quick_frames;  // where there is little time
    Painter painter;
    Reduction reduction = Reduction::kExact;
    bool flc = false;  // written as FLC, else as GIF
};

std::span<const Workload> Workloads();

// Draws the workload's first frames. Ends the program when a painter has too many colors.
IndexedAnimation Draw(const Workload& workload, int32 frames);

}  // namespace kirto::bench
