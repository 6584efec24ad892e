// Documents spelled by arbitrary bytes: what is saved faithfully and read as browsers do shows the
// same, picture for picture, as long as 256 colors do for what is new in each.
#include <algorithm>
#include <cstdlib>

#include "base/debug_line.h"
#include "formats/faithful/faithful_gif_save.h"
#include "formats/gif/gif_load.h"
#include "support/shown_animation.h"

using namespace kirto::test;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    kirto::InstallDebugSink([](const std::string&) {});
    ByteChoices choices(data, size);
    DocumentFixture made;
    made.prefs.animation_dithering = choices.Between(0, 2);
    made.prefs.animation_gifinterlaced = choices.OneIn(2);
    FillWithScenes(choices, 20, made.document);
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    const kirto::FaithfulGifSave save(file, made.document);

    DocumentFixture loaded;
    loaded.prefs.animation_faithful = true;
    const auto saved_file = BFile::OnMemory(file->Memory());
    if (GifLoad(saved_file.get(), 0, loaded.document).failed) std::abort();
    const std::vector<ShownFrame> meant = ShownFrames(*made.document.Current());
    const std::vector<ShownFrame> saved = ShownFrames(*loaded.document.Current());
    const bool exact = std::all_of(meant.begin(), meant.end(),
                                   [](const ShownFrame& frame) { return frame.promised; });
    if (exact && meant != saved) std::abort();
    return 0;
}
