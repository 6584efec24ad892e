#include "animation/frame.h"

#include <atomic>
#include <utility>

#include "base/text.h"
#include "color/shared_palette.h"

namespace {

kirto::FrameId NextId() {
    static std::atomic<kirto::FrameId> last = 0;
    return ++last;
}

}  // namespace

Frame::Frame() : id(NextId()), palette(kirto::DefaultPalette()) {}

Frame::Frame(std::string_view frame_name, int32 frame_width, int32 frame_height) : Frame() {
    SetName(frame_name);
    width = frame_width;
    height = frame_height;
}

Frame::Frame(std::string_view frame_name, kirto::FrameImage image)
    : Frame(frame_name, image.width, image.height) {
    bitmap = std::move(image.picture);
    palette = std::move(image.palette);
}

void Frame::SetName(std::string_view frame_name) {
    name = kirto::CutUtf8(frame_name, kMaxNameBytes);
}

bool operator==(const Frame& a, const Frame& b) {
    return a.id == b.id && a.bitmap == b.bitmap && a.name == b.name && a.height == b.height &&
           a.width == b.width && a.x_offset == b.x_offset && a.y_offset == b.y_offset &&
           a.pause_length == b.pause_length && a.local_palette == b.local_palette &&
           a.use_pause == b.use_pause && a.source == b.source &&
           (a.palette == b.palette || *a.palette == *b.palette);
}
