// Arbitrary bytes as an FLI or FLC, by the defined rules and by those of players: into an empty
// document, then once more behind what came of it. The header's last byte, which means nothing to
// readers, has bits: there is little memory; the work is stopped before the second time.
#include <cstdlib>

#include "base/debug_line.h"
#include "formats/fli/fli_load.h"

namespace {

// Room for 2^18 pixels of a canvas.
constexpr uint64 kPixelBytes = uint64{1} << 20;
constexpr uint64 kLittleMemory = uint64{12} << 10;
constexpr size_t kLastOfHeader = 127;

void Check(const AnimationDocument& document, int32 end) {
    if (end != document.FrameCount()) std::abort();
    int32 visited = 0;
    for (const kirto::FramePointer& frame : document.Current()->frames) {
        ++visited;
        if (!frame->palette || !frame->bitmap) std::abort();
        if (!frame->bitmap->HasRows() || frame->bitmap->Width() != frame->width) std::abort();
    }
    if (visited != document.FrameCount()) std::abort();
    if (document.pixel_budget->Used() > kPixelBytes) std::abort();
}

void Load(const uint8_t* data, size_t size, Prefs& prefs) {
    AnimationDocument document(prefs);
    const uint8 how = size > kLastOfHeader ? data[kLastOfHeader] : 0;
    document.pixel_budget->SetLimit((how & 1) != 0 ? kLittleMemory : kPixelBytes);
    for (int32 start : {0, 1}) {
        const auto file = BFile::OnMemory({data, data + size});
        if (start > 0) start = document.FrameCount();
        if (start > 0 && (how & 2) != 0) document.RequestStop();
        const FliLoad loader(file.get(), start, document);
        Check(document, loader.End());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    kirto::InstallDebugSink([](const std::string&) {});
    Prefs prefs{Prefs::BuiltIn{}};
    Load(data, size, prefs);
    prefs.animation_faithful = true;
    Load(data, size, prefs);
    return 0;
}
