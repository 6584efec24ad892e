// Documents and settings spelled by arbitrary bytes: what is saved faithfully and read as browsers
// do shows the same, picture for picture, as long as 256 colors do for what is new in each.
#include <algorithm>
#include <cstdlib>

#include "base/debug_line.h"
#include "formats/faithful/faithful_gif_save.h"
#include "formats/gif/gif_load.h"
#include "settings/prefs.h"
#include "support/shown_animation.h"

using namespace kirto::test;

namespace {

constexpr size_t kSettingsBytes = 64;  // the last of the input

// Colors by their names, and now and then what is none.
std::string ExactColors(ByteChoices& choices) {
    static constexpr char kDigits[] = "0123456789abcdefg";
    std::string colors;
    for (int32 left = choices.Between(0, 30); left > 0; --left) {
        colors += '#';
        const uint32 known = choices.OneIn(20) ? 17 : 16;
        for (int32 digit = 0; digit < 6; ++digit)
            colors += kDigits[choices.Below(known)];
        colors += choices.OneIn(2) ? ' ' : ',';
    }
    return colors;
}

// How frames of too many colors are saved, and pixels with alpha.
ShownAlpha ChooseSettings(ByteChoices& choices, Prefs& prefs) {
    ShownAlpha alpha;
    if (choices.OneIn(2)) alpha.threshold = choices.Between(-1, 256);
    if (choices.OneIn(2)) alpha.matte = choices.Below(1 << 24);
    prefs.animation_threshold = alpha.threshold;
    prefs.animation_matte = static_cast<int32>(alpha.matte);
    prefs.animation_jointcolors = choices.OneIn(2);
    prefs.animation_exactcolors = ExactColors(choices);
    prefs.animation_gifcomment = choices.OneIn(2);
    alpha.threshold = std::clamp(alpha.threshold, 0, 255);
    return alpha;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    kirto::InstallDebugSink([](const std::string&) {});
    ByteChoices choices(data, size);
    DocumentFixture made;
    made.prefs.animation_dithering = choices.Between(0, 2);
    made.prefs.animation_gifinterlaced = choices.OneIn(2);
    FillWithScenes(choices, 20, made.document);
    // Scenes may use up all bytes.
    const size_t settings_size = std::min(size, kSettingsBytes);
    ByteChoices settings(data + size - settings_size, settings_size);
    const ShownAlpha alpha = ChooseSettings(settings, made.prefs);
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    const kirto::FaithfulGifSave save(file, made.document);

    DocumentFixture loaded;
    loaded.prefs.animation_faithful = true;
    const auto saved_file = BFile::OnMemory(file->Memory());
    if (GifLoad(saved_file.get(), 0, loaded.document).failed) std::abort();
    const std::vector<ShownFrame> meant = ShownFrames(*made.document.Current(), alpha);
    const std::vector<ShownFrame> saved = ShownFrames(*loaded.document.Current());
    const bool exact = std::all_of(meant.begin(), meant.end(),
                                   [](const ShownFrame& frame) { return frame.promised; });
    if (exact && meant != saved) std::abort();
    return 0;
}
