#include "app/save_animation.h"

#include <algorithm>
#include <filesystem>
#include <memory>

#include "animation/save_differences.h"
#include "base/core_text.h"
#include "base/text.h"
#include "formats/faithful/faithful_gif_save.h"
#include "formats/gif/gif_save.h"
#include "kit/file.h"

namespace kirto {

namespace {

std::string LossOf(const Nearness& near) {
    std::string text;
    if (near.changed > 0) {
        constexpr double kParts = 3;
        const auto changed = static_cast<double>(near.changed);
        text = CoreText::With(
            CoreText::tr("%1% of the pixels got another color, by %2 of 255 on average"),
            {Format("%.1f", 100 * changed / static_cast<double>(near.pixels)),
             Format("%.1f", static_cast<double>(near.distance) / kParts / changed)});
    }
    if (near.short_pauses == 0) return text;
    return text + (text.empty() ? "" : ", ") + SlowFramesSentence(near.short_pauses);
}

SaveResult Encode(AnimationDocument& document, const std::shared_ptr<BFile>& file,
                  std::string* loss) {
    if (file->InitCheck() != B_OK) return SaveResult::kFileNotCreated;
    file->RemoveLeftovers();
    if (document.prefs.animation_faithful) {
        const FaithfulGifSave save(file, document);
        if (loss) *loss = LossOf(save.HowNear());
    } else {
        GifSave(file, document);
    }
    if (document.StopRequested()) return SaveResult::kStopped;
    return file->Commit() == B_OK ? SaveResult::kSaved : SaveResult::kWriteFailed;
}

constexpr int32 kLargestNumber = 0xFFFF;

bool Fits(int64 number) {
    return number >= 0 && number <= kLargestNumber;
}

}  // namespace

std::string SizeOutOfRange(const Animation& animation) {
    if (!Fits(animation.width)) return CoreText::tr("Width");
    if (!Fits(animation.height)) return CoreText::tr("Height");
    for (const FramePointer& frame : animation.frames) {
        if (!Fits(frame->x_offset))
            return CoreText::With(CoreText::tr("XOffset of %1"), {frame->name});
        if (!Fits(frame->y_offset))
            return CoreText::With(CoreText::tr("YOffset of %1"), {frame->name});
    }
    return {};
}

std::string NumbersCutShort(const Animation& animation, bool in_seconds) {
    std::string text;
    if (animation.use_loop && !Fits(animation.loop_count)) {
        text = CoreText::With(CoreText::tr("loop count %1 was saved as %2"),
                              {std::to_string(animation.loop_count),
                               std::to_string(animation.loop_count & kLargestNumber)});
    }
    const auto pauses =
        std::count_if(animation.frames.begin(), animation.frames.end(), [&](const auto& frame) {
            return !Fits(GifFrameEncoder::DelayOf(animation, *frame, in_seconds));
        });
    if (pauses == 0) return text;
    return text + (text.empty() ? "" : ", ") +
           CoreText::With(CoreText::tr("%1 pause(s) above 655.35 seconds were saved shorter"),
                          {std::to_string(pauses)});
}

std::string PathIn(const std::string& directory, const std::string& name) {
    return directory.empty() ? "" : (std::filesystem::path(directory) / name).string();
}

std::string SequenceFileName(const std::string& file_name, int32 index) {
    const size_t dot = std::min(file_name.find('.'), file_name.size());
    return file_name.substr(0, dot) + Format("%04d", index) + file_name.substr(dot);
}

SaveResult SaveAnimatedGif(AnimationDocument& document, const std::string& path,
                           std::string* loss) {
    if (document.Current()->FrameLargerThanCanvas()) return SaveResult::kFrameTooLarge;
    if (!SizeOutOfRange(*document.Current()).empty()) return SaveResult::kSizeOutOfRange;
    return Encode(document, BFile::CreateReplacing(path), loss);
}

SaveResult SavePreviewGif(AnimationDocument& document, const std::string& path) {
    return Encode(document, BFile::CreatePrivate(path), nullptr);
}

}  // namespace kirto
