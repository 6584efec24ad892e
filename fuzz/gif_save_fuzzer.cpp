// Documents spelled by arbitrary bytes: what is written must be read back, frame for frame, and
// where no dithering comes between, pixel for pixel.
#include <cstdlib>

#include "base/debug_line.h"
#include "formats/gif/gif_load.h"
#include "support/meant_picture.h"

using namespace kirto::test;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    kirto::InstallDebugSink([](const std::string&) {});
    ByteChoices choices(data, size);
    DocumentStyle style;
    style.max_side = 20;
    style.fitting_colors = choices.OneIn(2);
    style.oddities = choices.OneIn(2);
    MadeUpAnimation made(style, choices);

    DocumentFixture loaded;
    loaded.prefs = made.prefs;
    const auto file = BFile::OnMemory(made.Save());
    if (GifLoad(file.get(), 0, loaded.document).failed) std::abort();
    if (loaded.document.FrameCount() != made.document.FrameCount()) std::abort();
    if (made.prefs.animation_gifloadfullframe || !made.PixelsAreKnown(style)) return 0;
    for (int32 i = 0; i < made.document.FrameCount(); ++i) {
        const Pixels meant = MeantOwnSizePixels(made.document, *made.document.FrameAt(i));
        if (PixelsOf(*loaded.document.FrameAt(i)->bitmap) != meant) std::abort();
    }
    return 0;
}
