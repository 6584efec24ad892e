#pragma once

namespace kirto {

// What a file draws of each frame behind the first.
enum class FrameAreas {
    kChanged,  // what differs from the frame before, over that
    kWhole,    // all of it, for programs that show an image of the file by itself
};

}  // namespace kirto
