// Arbitrary bytes as a GIF file. The first byte's bits, from the lowest: every frame is as large as
// the screen, not as its image; there is little memory; the frames come behind another one; the
// work is stopped; the file is read as browsers do, not by the defined rules.
#include <cstdlib>

#include "base/debug_line.h"
#include "formats/gif/gif_load.h"

namespace {

// Room for 2^18 pixels of a canvas.
constexpr uint64 kMemoryLimit = uint64{1} << 20;
constexpr uint64 kLittleMemory = uint64{12} << 10;

void Check(bool holds) {
    if (!holds) std::abort();
}

void CheckFrame(const Frame& frame, const AnimationDocument& document) {
    Check(frame.bitmap && frame.bitmap->HasRows() && frame.palette);
    Check(frame.bitmap->Width() == frame.width && frame.bitmap->Height() == frame.height);
    Check(frame.palette->bits >= 1 && frame.palette->bits <= 8);
    Check(frame.use_pause == (document.prefs.animation_faithful || frame.pause_length != 0));
}

// Not so where a file that comes behind another one has the last word on the size.
void CheckCanvas(const AnimationDocument& document) {
    for (const kirto::FramePointer& frame : document.Current()->frames)
        Check(frame->width <= document.Current()->width &&
              frame->height <= document.Current()->height);
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

void Load(uint8_t how, const uint8_t* data, size_t size, Prefs& prefs) {
    AnimationDocument document(prefs);
    const uint64 limit = (how & 2) != 0 ? kLittleMemory : kMemoryLimit;
    document.pixel_budget->SetLimit(limit);
    if ((how & 4) != 0) {
        const auto same = BFile::OnMemory({data, data + size});
        const GifLoad before(same.get(), 0, document);
    }
    if ((how & 8) != 0) document.RequestStop();
    const auto file = BFile::OnMemory({data, data + size});
    const int32 start = document.FrameCount();
    const GifLoad loader(file.get(), start, document);
    Check(loader.End() == document.FrameCount());
    CheckList(document);
    if (start == 0) CheckCanvas(document);
    Check(document.pixel_budget->Used() <= limit);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    kirto::InstallDebugSink([](const std::string&) {});
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.animation_gifloadfullframe = (data[0] & 1) != 0;
    prefs.animation_faithful = (data[0] & 16) != 0;
    Load(data[0], data + 1, size - 1, prefs);
    return 0;
}
