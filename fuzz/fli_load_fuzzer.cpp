// Arbitrary bytes as an FLI or FLC. The header's last byte, which means nothing to readers, has
// bits, from the lowest: there is little memory; the file is read once more, behind what came of it
// the first time; the work is stopped before the last time; the file is read as players do, not by
// the defined rules.
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

void LoadAt(int32 start, const uint8_t* data, size_t size, AnimationDocument& document) {
    const auto file = BFile::OnMemory({data, data + size});
    const FliLoad loader(file.get(), start, document);
    Check(document, loader.End());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    kirto::InstallDebugSink([](const std::string&) {});
    const uint8 how = size > kLastOfHeader ? data[kLastOfHeader] : 0;
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.animation_faithful = (how & 8) != 0;
    AnimationDocument document(prefs);
    document.pixel_budget->SetLimit((how & 1) != 0 ? kLittleMemory : kPixelBytes);
    if ((how & 2) != 0) LoadAt(0, data, size, document);
    if ((how & 4) != 0) document.RequestStop();
    LoadAt(document.FrameCount(), data, size, document);
    return 0;
}
