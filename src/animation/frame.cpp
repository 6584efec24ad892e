#include "animation/frame.h"

#include <atomic>

#include "base/text.h"
#include "color/shared_palette.h"
#include "kit/picture_files.h"

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

status_t Frame::Read(const std::string& path, std::string_view frame_name,
                     BTranslatorRoster& roster, std::shared_ptr<kirto::PixelBudget> budget,
                     Frame* result, kirto::Work* work) {
    const std::shared_ptr<Palette> own_palette = kirto::SharePalette();
    if (!own_palette) return B_NO_MEMORY;
    std::shared_ptr<BBitmap> picture;
    const status_t status = kirto::ReadPicture(path, roster, budget, work, &picture);
    if (status < B_OK) return status;
    Frame frame(frame_name, picture->Bounds().PixelWidth(), picture->Bounds().PixelHeight());
    frame.bitmap = kirto::Picture::Of(std::move(picture), std::move(budget));
    own_palette->Set(frame.bitmap.get(), work);
    if (kirto::IsStopped(work)) return B_CANCELED;
    frame.palette = own_palette;
    *result = std::move(frame);
    return B_OK;
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
