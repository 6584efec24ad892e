#include "canvas_digest.h"

#include "color/hash_item.h"
#include "formats/gif/gif_load.h"

namespace kirto::bench {

void CanvasDigest::Add(const uint8* first_row, size_t bytes_per_row) {
    for (int32 y = 0; y < plan_.height; ++y) {
        const uint8* pixel = first_row + static_cast<size_t>(y) * bytes_per_row;
        for (int32 x = 0; x < plan_.width; ++x, pixel += 4) {
            value_ = (value_ ^ ColorKey(pixel[2], pixel[1], pixel[0])) * 0x100000001B3U;
        }
    }
}

bool LoadFromStart(BFile* file, AnimationDocument& document) {
    file->Seek(0, SEEK_FROM_START);
    return !GifLoad(file, 0, document).failed;
}

uint64 LoadedDigest(const std::vector<uint8>& gif, const AnimationPlan& plan) {
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document(prefs);
    const auto file = BFile::OnMemory(gif);
    if (!LoadFromStart(file.get(), document)) return 0;
    CanvasDigest digest(plan);
    for (const FramePointer& frame : document.Current()->frames)
        digest.Add(frame->bitmap->Bits(), frame->bitmap->BytesPerRow());
    return digest.Value();
}

}  // namespace kirto::bench
