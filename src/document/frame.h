#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "color/palette.h"
#include "platform/bitmap.h"
#include "platform/translator_roster.h"
#include "platform/types.h"

// One picture of the animation with everything kept per picture. A plain record: the document links
// and numbers frames, everybody reads and writes the fields directly under the document's lock.
// Never copied.
class Frame {
  public:
    // The pixels, over (0, 0, width - 1, height - 1) unless a creator says otherwise. Shared so
    // that a painter or a worker may keep them; they do not change once the frame is in the
    // document.
    std::shared_ptr<BBitmap> bitmap;
    std::string name;            // at most kMaxNameBytes bytes
    int32 height = 0;            // pixels
    int32 width = 0;             // pixels
    int32 x_offset = 0;          // left edge on the canvas, pixels
    int32 y_offset = 0;          // top edge on the canvas, pixels
    int32 index = 0;             // position in the document, or where to insert
    double pause_length = 0.0;   // hundredths of a second, or seconds ("global_pauseinseconds")
    bool local_palette = false;  // written with its own colour table
    bool use_pause = false;      // pause_length overrides the animation's
    bool init_failed = false;    // construction failed; only name, palette and bitmap are defined
    bool out_of_memory = false;  // it failed because memory is short
    std::unique_ptr<Palette> palette;  // null only when init_failed
    Frame* next = nullptr;             // the document's link; not owned

    static constexpr size_t kMaxNameBytes = 255;

    // Blank; the GIF decoder fills it.
    Frame();
    // Empty, of the given size: for creators that make the pixels themselves. Note the order.
    Frame(std::string_view frame_name, int32 frame_width, int32 frame_height, int32 frame_index);
    // From an image file, with a palette built from the picture. init_failed when no translator
    // reads the file.
    Frame(const char* path, std::string_view frame_name, int32 frame_index,
          BTranslatorRoster& roster, std::shared_ptr<kirto::PixelBudget> budget);
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    // Stores the name, cut at a whole UTF-8 character where it is too long.
    void SetName(std::string_view frame_name);
};
