// A text that is drawn on frames, as the command line describes it.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/caption_layout.h"
#include "base/types.h"

namespace kirto {

struct Caption {
    std::string text;  // UTF-8
    std::string font;  // a family's name; empty: the system's
    std::optional<int32> size;
    uint32 color = 0xFFFFFF;  // red * 65536 + green * 256 + blue, like the outline's
    uint32 outline_color = 0x000000;
    int32 outline = kUsualOutline;  // its width in pixels; 0 for none
    int32 anchor = kUsualCaptionAnchor;
    std::optional<int32> x;  // in place of the anchor's
    std::optional<int32> y;
    int32 fade_in = 0;  // frames
    int32 fade_out = 0;
};

// A text as a PNG file, of which the size is known. Empty bytes for a text that can't be drawn.
struct CaptionPicture {
    std::string png;
    int32 width = 0;
    int32 height = 0;
};

// Draws texts; the size is given.
using CaptionDrawer = std::function<CaptionPicture(const Caption& caption)>;

// Reads "TEXT[,NAME=VALUE...]": the text ends before the first of those names behind which there
// are no others. Nothing where the text is empty, a value is none of its name's, or a name occurs
// twice; then the reason names what is wrong.
std::optional<Caption> ParseCaption(const std::string& value, std::string* reason);

}  // namespace kirto
