// Reading a colour table out of arbitrary bytes, taken as a GIF and as an FLI.
#include <cstdlib>

#include "color/palette.h"

namespace {

void Check(bool (Palette::*strip)(BFile*), const uint8* data, size_t size) {
    Palette palette;
    const auto file = BFile::OnMemory({data, data + size});
    const bool read = (palette.*strip)(file.get());
    if (palette.bits < 1 || palette.bits > 8) std::abort();
    if (palette.size < 1 || palette.size > 256) std::abort();
    if (read && palette.size != 1 << palette.bits) std::abort();
    for (const rgb_color& color : palette.colors) {
        if (color.alpha != 255) std::abort();
    }
    if (palette.IndexForColor(12, 34, 56) >= palette.size) std::abort();
    palette.RecogniseBuiltIn();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    Check(&Palette::StripGif, data, size);
    Check(&Palette::StripFli, data, size);
    return 0;
}
