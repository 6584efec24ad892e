#pragma once

#include <memory>
#include <string>
#include <vector>

#include "document/animation_document.h"
#include "platform/bitmap.h"
#include "platform/types.h"
#include "settings/prefs.h"

namespace kirto {

// What the windows show of a frame.
struct FrameSnapshot {
    std::shared_ptr<const BBitmap> bitmap;  // never changes; kept without any lock
    std::string name;
    int32 width = 0;   // pixels
    int32 height = 0;  // pixels
};

// What the windows show of the current frame besides.
struct CurrentFrameSnapshot {
    int32 x_offset = 0;
    int32 y_offset = 0;
    int32 unique_colors = 0;
    bool use_pause = false;
    double pause_length = 0.0;
    bool local_palette = false;
    int32 palette_mode = 0;  // a PaletteMode
};

// A copy of everything that the windows show of the document, so that they paint and lay out
// without its lock. GUI thread. Before the first Take it is an empty animation with built-in
// settings.
struct DocumentSnapshot {
    std::string file_name = "untitled";
    std::string file_directory;  // empty for a document that has no file
    int32 width = 0;             // canvas, pixels
    int32 height = 0;            // canvas, pixels
    bool use_pause = false;
    double pause_length = 0.0;
    bool use_loop = false;
    int32 loop_count = 0;
    bool modified = false;

    int32 palette_mode = 0;  // a PaletteMode
    int32 palette_bits = 8;
    int32 background_index = 0;
    int32 transparent_index = 0;
    bool use_transparent = false;
    bool dither = false;

    std::vector<FrameSnapshot> frames;
    int32 selected = -1;           // -1 exactly when there are no frames
    CurrentFrameSnapshot current;  // of the selected frame

    Prefs prefs{Prefs::BuiltIn{}};

    int32 FrameCount() const { return static_cast<int32>(frames.size()); }
    // Null without frames.
    const FrameSnapshot* FirstFrame() const { return frames.empty() ? nullptr : &frames.front(); }
    const FrameSnapshot* CurrentFrame() const;

    // Copies the document's state. Never waits: false, and nothing changes, while somebody is
    // changing the document.
    bool Take(AnimationDocument& document);
    // The state of an empty document, from the settings' defaults.
    void Reset();
};

}  // namespace kirto
