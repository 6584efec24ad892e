#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "animation/frame_image.h"
#include "base/types.h"
#include "color/palette.h"
#include "picture/picture.h"

namespace kirto {

struct GifSource;

// Tells frames apart for the life of the program. 0 is not a frame.
using FrameId = uint64;

}  // namespace kirto

// One picture of the animation with everything kept per picture. A value: copies are cheap, since
// pixels and palette are shared and never change once they are here. Within an animation it is
// constant; an edit puts another frame with the same id in its place.
class Frame {
  public:
    static constexpr size_t kMaxNameBytes = 255;

    kirto::FrameId id;  // the same through all edits of the frame, and in its copies
    std::shared_ptr<const kirto::Picture> bitmap;  // the pixels; null until there are any
    std::string name;                              // at most kMaxNameBytes bytes
    int32 height = 0;                              // pixels
    int32 width = 0;                               // pixels
    int32 x_offset = 0;                            // left edge on the canvas, pixels
    int32 y_offset = 0;                            // top edge on the canvas, pixels
    double pause_length = 0.0;   // hundredths of a second, or seconds ("global_pauseinseconds")
    bool local_palette = false;  // written with its own color table
    bool use_pause = false;      // pause_length overrides the animation's
    // Its data in the file ended early or was wrong, and what was good was kept. Told to the user,
    // neither saved nor compared.
    bool damaged = false;
    std::shared_ptr<const Palette> palette;  // never null
    // How it stood in its file; null unless it was read as browsers do.
    std::shared_ptr<const kirto::GifSource> source;

    // Blank, with an id of its own and the default palette.
    Frame();
    // Of the given name and size, without pixels yet. Note the order.
    Frame(std::string_view frame_name, int32 frame_width, int32 frame_height);
    // Of an image file that was read.
    Frame(std::string_view frame_name, kirto::FrameImage image);

    // Stores the name, cut at a whole UTF-8 character where it is too long.
    void SetName(std::string_view frame_name);

    // Equal fields and palettes, the same id, and the same pixels in memory, damaged or not.
    friend bool operator==(const Frame& a, const Frame& b);
};

namespace kirto {

using FramePointer = std::shared_ptr<const Frame>;

}  // namespace kirto
