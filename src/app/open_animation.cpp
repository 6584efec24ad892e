#include "app/open_animation.h"

#include <array>

#include "base/core_text.h"
#include "base/text.h"
#include "color/sf_hash.h"
#include "formats/fli/fli_load.h"
#include "formats/gif/gif_load.h"
#include "formats/images/animated_image_load.h"
#include "formats/video/video_reader.h"
#include "kit/alert.h"

namespace kirto {

namespace {

constexpr int32 kPauseBuckets = 100;
constexpr int32 kAsBrowsersButton = 0;
constexpr const char* kAsBrowsersLabel = CoreText::Later("Open as Browsers Do");
constexpr const char* kSalvageLabel = CoreText::Later("Salvage");
constexpr const char* kOkLabel = CoreText::Later("OK");

bool ContainsAny(const std::string& text, std::initializer_list<const char*> parts) {
    for (const char* part : parts) {
        if (Contains(text, part)) return true;
    }
    return false;
}

bool IsVideoName(const std::string& leaf_name) {
    std::string name = leaf_name;
    for (char& byte : name) {
        if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte - 'A' + 'a');
    }
    for (const char* extension : {".mp4", ".m4v", ".mov", ".webm", ".mkv", ".avi"}) {
        if (name.ends_with(extension)) return true;
    }
    return false;
}

// The frames that a load inserted, as document positions.
struct FrameRange {
    int32 begin = 0;
    int32 end = 0;
};

void RecognisePalettes(Animation& animation, FrameRange range) {
    EditPalette(animation, [](Palette& palette) { palette.RecogniseBuiltIn(); });
    for (int32 i = range.begin; i < range.end; ++i) {
        if (!animation.frames.At(i)->local_palette) continue;
        EditFramePalette(animation, i, [](Palette& palette) { palette.RecogniseBuiltIn(); });
    }
}

// The whole-number pause that most frames have; among equals the first in the table's order.
uint32 CommonestPause(const Animation& animation, FrameRange range) {
    SFHash counts(kPauseBuckets);
    for (int32 i = range.begin; i < range.end && !counts.fail; ++i) {
        const uint32 pause = static_cast<uint32>(animation.frames.At(i)->pause_length);
        if (HashItem* item = counts.GetItem(pause)) {
            ++static_cast<ColorItem*>(item)->value;
        } else {
            counts.AddItem(new ColorItem(pause, 1));
        }
    }
    const ColorItem* best = nullptr;
    for (int32 left = counts.fail ? 0 : counts.CountItems(); left > 0; --left) {
        const auto* item = static_cast<const ColorItem*>(counts.NextItem());
        if (!best || item->value > best->value) best = item;
    }
    return best ? best->key : 0;
}

// Makes the commonest pause the animation's; the frames that have it follow the animation from then
// on. Pauses come from the file in hundredths and leave in the unit of the settings.
void ShareOutPauses(Animation& animation, FrameRange range, bool in_seconds) {
    const double commonest = CommonestPause(animation, range);
    const double unit = in_seconds ? 100.0 : 1.0;
    if (commonest != 0) {
        animation.pause_length = commonest;
        animation.use_pause = true;
    }
    for (int32 i = range.begin; i < range.end; ++i) {
        EditFrame(animation, i, [&](Frame& frame) {
            if (frame.pause_length == commonest) {
                frame.pause_length = 0;
                frame.use_pause = false;
            } else {
                frame.pause_length /= unit;
            }
        });
    }
    animation.pause_length /= unit;
}

BAlert DamageAlert(bool offers_browsers) {
    const char* text = kUnreadableAnimationText;
    if (offers_browsers) return BAlert("", text, kAsBrowsersLabel, kSalvageLabel, kOkLabel);
    return BAlert("", text, kSalvageLabel, kOkLabel);
}

// Asks what is to become of a file that was refused.
template <typename Load>
void AskAboutDamage(const Load& load, int32 position, AnimationDocument& document,
                    BrowsersOffer* offer) {
    if (load.out_of_memory) WarnOutOfMemory();
    const bool offers_browsers = offer && load.harmless_cause != HarmlessCause::kNone;
    if (offers_browsers) offer->cause = load.harmless_cause;
    BAlert alert = DamageAlert(offers_browsers);
    const int32 salvage_button = offers_browsers ? 1 : 0;
    // Where there were frames before, "OK" loses more than the file that is damaged.
    const int32 inserted = load.End() - position;
    if (document.FrameCount() > inserted) alert.SetDefaultButton(salvage_button);
    const int32 answer = alert.Go();
    if (answer == salvage_button) return;
    if (offers_browsers && answer == kAsBrowsersButton) {
        offer->accepted = true;
    } else {
        document.Reset();
    }
}

}  // namespace

bool IsAnimatedImage(AnimationType type) {
    return type == AnimationType::kWebp || type == AnimationType::kApng;
}

AnimationType ClassifyAnimation(const std::string& leaf_name, const std::string& mime_type) {
    if (mime_type == "image/gif" || ContainsAny(leaf_name, {".gif", ".GIF"})) {
        return AnimationType::kGif;
    }
    if (mime_type == "video/x-fli" || mime_type == "video/x-flc" ||
        ContainsAny(leaf_name, {".fli", ".FLI", ".flc", ".FLC"})) {
        return AnimationType::kFli;
    }
    if (IsVideoName(leaf_name)) return AnimationType::kVideo;
    return AnimationType::kNone;
}

AnimationType ClassifyContent(BFile* file) {
    std::array<uint8, 6> start{};
    file->Seek(0, SEEK_FROM_START);
    file->Read(start.data(), start.size());
    file->Seek(0, SEEK_FROM_START);
    if (start[0] == 'G' && start[1] == 'I' && start[2] == 'F') return AnimationType::kGif;
    const bool flic_magic = (start[4] == 0x11 || start[4] == 0x12) && start[5] == 0xAF;
    if (flic_magic) return AnimationType::kFli;
    switch (AnimatedImageFormatOf(*file)) {
        case AnimatedImageFormat::kWebp:
            return AnimationType::kWebp;
        case AnimatedImageFormat::kApng:
            return AnimationType::kApng;
        case AnimatedImageFormat::kNone:
            break;
    }
    return AnimationType::kNone;
}

AnimationType ClassifyFile(const std::string& path, const std::string& mime_type) {
    const AnimationType named = ClassifyAnimation(entry_ref(path).Leaf(), mime_type);
    if (named != AnimationType::kNone) return named;
    BFile file(path, B_READ_ONLY);
    const AnimationType found = ClassifyContent(&file);
    return IsAnimatedImage(found) ? found : AnimationType::kNone;
}

const char* TextOf(HarmlessCause cause) {
    switch (cause) {
        case HarmlessCause::kShortCodes:
            return CoreText::Later("an image has codes for fewer colors than its palette has");
        case HarmlessCause::kImageBeyondScreen:
            return CoreText::Later("an image is larger than the screen");
        case HarmlessCause::kMissingTrailer:
            return CoreText::Later("the file ends without its trailer");
        case HarmlessCause::kUnknownRecord:
            return CoreText::Later("it has a record of an unknown type");
        case HarmlessCause::kNone:
            break;
    }
    return nullptr;
}

bool OpenGif(BFile* file, int32 position, AnimationDocument& document, BrowsersOffer* offer) {
    const GifLoad loader(file, position, document);
    const bool stopped = loader.failed && document.StopRequested();
    if (loader.failed && !stopped) {
        AskAboutDamage(loader, position, document, offer);
        return false;
    }
    const FrameRange range{position, loader.End()};
    document.Change([&](Animation& animation) {
        RecognisePalettes(animation, range);
        ShareOutPauses(animation, range, document.prefs.global_pauseinseconds);
    });
    return !stopped;
}

bool OpenFli(BFile* file, int32 position, AnimationDocument& document, BrowsersOffer* offer) {
    const FliLoad loader(file, position, document);
    const bool stopped = loader.failed && document.StopRequested();
    if (loader.failed && !stopped) {
        AskAboutDamage(loader, position, document, offer);
        return false;
    }
    document.Change([](Animation& animation) {
        animation.use_loop = true;
        animation.loop_count = 0;
    });
    return !stopped;
}

bool OpenAnimatedImage(AnimationType type, BFile* file, int32 position, AnimationDocument& document,
                       const BTranslatorRoster& roster) {
    const auto format =
        type == AnimationType::kWebp ? AnimatedImageFormat::kWebp : AnimatedImageFormat::kApng;
    const AnimatedImageLoad loader(format, file, position, document, roster);
    if (!loader.failed) return true;
    if (!document.StopRequested()) AskAboutDamage(loader, position, document, nullptr);
    return false;
}

bool OpenVideo(const std::string& path, const VideoCut& cut, int32 position,
               AnimationDocument& document) {
    const auto programs = FindVideoPrograms();
    if (!programs) {
        Warn(kNoVideoProgramsText);
        return false;
    }
    VideoReader::Job job{path, cut};
    job.pixel_bytes = document.pixel_budget->Left() + PixelBudget::kWorkingRoom;
    const auto stopped = [&document] { return document.StopRequested(); };
    const auto video = ProbeVideo(*programs, path, job.limits, stopped);
    const auto frames = video ? FramesOf(*video, cut) : std::nullopt;
    if (video && !frames) {
        Warn(CoreText::Later("The video can't be opened because the chosen part is not in it."));
        return false;
    }
    std::unique_ptr<VideoReader> reader;
    if (frames) {
        job.frames = *frames;
        reader = std::make_unique<VideoReader>(programs->decode, std::move(job), stopped);
    }
    const AnimatedImageLoad loader(std::move(reader), position, document);
    if (!loader.failed) return true;
    if (!document.StopRequested()) AskAboutDamage(loader, position, document, nullptr);
    return false;
}

bool OpenAnimation(AnimationType type, BFile* file, int32 position, AnimationDocument& document,
                   BrowsersOffer* offer) {
    return type == AnimationType::kGif ? OpenGif(file, position, document, offer)
                                       : OpenFli(file, position, document, offer);
}

}  // namespace kirto
