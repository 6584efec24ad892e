#include "app/save_verification.h"

#include <algorithm>
#include <new>

#include "base/debug_line.h"
#include "formats/gif/gif_load.h"
#include "kit/file.h"

namespace kirto {

namespace {

Prefs BrowserSettings() {
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.animation_faithful = true;
    return prefs;
}

}  // namespace

SaveVerification::SaveVerification(uint64 memory_limit)
    : prefs_(BrowserSettings()), document_(prefs_) {
    document_.pixel_budget->SetLimit(memory_limit);
}

SaveComparison::Options SaveVerification::OptionsOf(const Prefs& prefs) {
    return {.parts = !prefs.animation_gifloadfullframe && !prefs.animation_faithful,
            .pauses_in_seconds = prefs.global_pauseinseconds,
            .own_palettes = prefs.animation_faithful,
            .threshold = prefs.animation_faithful ? std::clamp(prefs.animation_threshold, 0, 255)
                                                  : FrameComparison::kHalf};
}

SaveVerification::Result SaveVerification::Run(const std::string& path, const Animation& saved,
                                               const SaveComparison::Options& options) {
    try {
        const Result read = ReadFile(path);
        if (read != Result::kEqual) return read;
        const std::shared_ptr<const Animation> animation = document_.Current();
        differences_ = SaveComparison(saved, *animation, options, &document_.work).Compare();
    } catch (const std::bad_alloc&) {
        return Result::kNoMemory;
    }
    if (document_.StopRequested()) return Result::kStopped;
    return differences_.Any() ? Result::kDifferent : Result::kEqual;
}

// A file that breaks off is compared as far as it goes.
SaveVerification::Result SaveVerification::ReadFile(const std::string& path) {
    const DebugLineCapture lines;
    BFile file(path, B_READ_ONLY);
    if (file.InitCheck() != B_OK) return Result::kUnreadable;
    const GifLoad load(&file, 0, document_);
    if (document_.StopRequested()) return Result::kStopped;
    return load.out_of_memory ? Result::kNoMemory : Result::kEqual;
}

}  // namespace kirto
