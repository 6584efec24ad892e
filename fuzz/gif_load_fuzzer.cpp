// Arbitrary bytes as a GIF file, by the defined rules and by those of browsers. The first byte
// chooses how the former are meant: odd, every frame at the size of the screen; even, every image
// at its own.
#include <cstdlib>

#include "base/debug_line.h"
#include "formats/gif/gif_load.h"

namespace {

constexpr uint64 kMemoryLimit = uint64{64} << 20;

void Check(bool holds) {
    if (!holds) std::abort();
}

void CheckFrame(const Frame& frame, const AnimationDocument& document) {
    Check(frame.bitmap && frame.bitmap->HasRows() && frame.palette);
    Check(frame.bitmap->Width() == frame.width && frame.bitmap->Height() == frame.height);
    Check(frame.width <= document.Current()->width && frame.height <= document.Current()->height);
    Check(frame.palette->bits >= 1 && frame.palette->bits <= 8);
    Check(frame.use_pause == (document.prefs.animation_faithful || frame.pause_length != 0));
}

void CheckList(const AnimationDocument& document) {
    const int32 count = document.FrameCount();
    Check(document.Selected() == (count > 0 ? 0 : -1));
    int32 visited = 0;
    for (const kirto::FramePointer& frame : document.Current()->frames) {
        Check(frame && frame == document.FrameAt(visited++));
        CheckFrame(*frame, document);
    }
    Check(visited == count);
}

void Load(const uint8_t* data, size_t size, Prefs& prefs) {
    AnimationDocument document(prefs);
    document.pixel_budget->SetLimit(kMemoryLimit);
    const auto file = BFile::OnMemory({data, data + size});
    const GifLoad loader(file.get(), 0, document);
    Check(loader.End() == document.FrameCount());
    CheckList(document);
    Check(document.pixel_budget->Used() <= kMemoryLimit);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    kirto::InstallDebugSink([](const std::string&) {});
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.animation_gifloadfullframe = (data[0] & 1) != 0;
    Load(data + 1, size - 1, prefs);
    prefs.animation_faithful = true;
    Load(data + 1, size - 1, prefs);
    return 0;
}
