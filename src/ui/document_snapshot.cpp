#include "ui/document_snapshot.h"

#include "document/document_scope.h"

namespace kirto {

namespace {

CurrentFrameSnapshot CurrentOf(const Frame& frame) {
    CurrentFrameSnapshot current;
    current.x_offset = frame.x_offset;
    current.y_offset = frame.y_offset;
    current.unique_colors = frame.palette->unique_colors;
    current.use_pause = frame.use_pause;
    current.pause_length = frame.pause_length;
    current.local_palette = frame.local_palette;
    current.palette_mode = frame.palette->mode;
    return current;
}

}  // namespace

const FrameSnapshot* DocumentSnapshot::CurrentFrame() const {
    if (selected < 0 || selected >= FrameCount()) return nullptr;
    return &frames[static_cast<size_t>(selected)];
}

bool DocumentSnapshot::Take(AnimationDocument& document) {
    const TryReaderScope reader(document);
    if (!reader.Entered()) return false;
    file_name = document.file_name;
    file_directory = document.file_directory;
    width = document.global_width;
    height = document.global_height;
    use_pause = document.use_pause_global;
    pause_length = document.pause_length_global;
    use_loop = document.use_loop;
    loop_count = document.loop_count;
    modified = document.modified;

    const Palette& palette = *document.global_palette;
    palette_mode = palette.mode;
    palette_bits = palette.bits;
    background_index = palette.background_index;
    transparent_index = palette.transparent_index;
    use_transparent = palette.use_transparent;
    dither = palette.dither;

    frames.clear();
    frames.reserve(static_cast<size_t>(document.frame_count));
    for (const Frame* frame = document.first_frame; frame; frame = frame->next) {
        frames.push_back({frame->bitmap, frame->name, frame->width, frame->height});
    }
    selected = document.selected;
    const Frame* frame = document.CurrentFrame();
    current = frame ? CurrentOf(*frame) : CurrentFrameSnapshot{};
    prefs = document.prefs;
    return true;
}

void DocumentSnapshot::Reset() {
    const Prefs settings = prefs;
    *this = DocumentSnapshot();
    prefs = settings;
    width = prefs.global_width;
    height = prefs.global_height;
    use_pause = prefs.global_usepause;
    pause_length = prefs.global_pauselength;
    use_loop = prefs.global_useloop;
    loop_count = prefs.global_loopcount;
    palette_mode = prefs.palette_mapping;
    use_transparent = prefs.palette_usetransparent;
    transparent_index = prefs.palette_transparentindex;
    background_index = prefs.palette_backgroundindex;
    dither = prefs.palette_dither;
}

}  // namespace kirto
