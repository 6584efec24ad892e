#include "document/frame.h"

#include <new>

#include "platform/text.h"

namespace {

// Null when memory is short, so that a frame can say init_failed.
template <typename... Arguments>
std::unique_ptr<Palette> MakePalette(Arguments... arguments) {
    if (kirto::AllocationShouldFail()) return nullptr;
    return std::unique_ptr<Palette>(new (std::nothrow) Palette(arguments...));
}

}  // namespace

Frame::Frame() : palette(MakePalette()) {
    init_failed = palette == nullptr;
}

Frame::Frame(std::string_view frame_name, int32 frame_width, int32 frame_height, int32 frame_index)
    : Frame() {
    SetName(frame_name);
    width = frame_width;
    height = frame_height;
    index = frame_index;
}

Frame::Frame(const char* path, std::string_view frame_name, int32 frame_index,
             BTranslatorRoster& roster, std::shared_ptr<kirto::PixelBudget> budget)
    : index(frame_index) {
    SetName(frame_name);
    BFile file(path, B_READ_ONLY);
    const status_t status = roster.Translate(file, std::move(budget), &bitmap);
    if (status < B_OK) {
        bitmap.reset();
        init_failed = true;
        out_of_memory = status == B_NO_MEMORY;
        return;
    }
    width = bitmap->Bounds().PixelWidth();
    height = bitmap->Bounds().PixelHeight();
    palette = MakePalette(static_cast<const BBitmap*>(bitmap.get()));
    init_failed = palette == nullptr;
    out_of_memory = init_failed;
}

void Frame::SetName(std::string_view frame_name) {
    name = kirto::CutUtf8(frame_name, kMaxNameBytes);
}
