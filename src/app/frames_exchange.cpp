#include "app/frames_exchange.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>

#include "animation/arrangement.h"
#include "animation/frame_image.h"
#include "app/open_animation.h"
#include "base/core_text.h"
#include "formats/faithful/faithful_gif_save.h"
#include "formats/recovery/recovery_file_reader.h"
#include "formats/recovery/recovery_file_writer.h"
#include "kit/alert.h"
#include "kit/file.h"

namespace kirto {

namespace {

// The animation with nothing but the selected frames, the first of them current.
Animation SelectedPart(const Animation& animation) {
    Animation part = animation;
    part.frames = {};
    part.several = {};
    for (const int32 i : animation.Selection().Positions())
        part.frames.Insert(part.frames.Size(), animation.frames.At(i));
    part.selected = part.frames.Empty() ? -1 : 0;
    return part;
}

// Frames that wait as long as their animation says wait as long in another one.
void KeepPauses(Animation& source, const Animation& target) {
    const bool same = source.use_pause == target.use_pause &&
                      (!source.use_pause || source.pause_length == target.pause_length);
    if (same || !source.use_pause) return;
    for (int32 i = 0; i < source.frames.Size(); ++i) {
        if (source.frames.At(i)->use_pause) continue;
        EditFrame(source, i, [&source](Frame& frame) {
            frame.use_pause = true;
            frame.pause_length = source.pause_length;
        });
    }
}

void Refuse(status_t status) {
    if (status == B_NO_MEMORY) return WarnOutOfMemory();
    TellQuietly(CoreText::Later(
        "What is on the clipboard can't be pasted because it was damaged or is unsupported."));
}

int32 PositionIn(const BMessage& message, const AnimationDocument& document) {
    int32 position = document.Selected() + 1;
    message.FindInt32("position", &position);
    return std::clamp(position, 0, document.FrameCount());
}

void PasteAnimation(AnimationDocument& document, BFile& file, int32 position) {
    RecoveryFileReader reader(file);
    std::optional<RecoveryDocument> read = reader.ReadDocument(document.pixel_budget);
    if (!read) return Refuse(reader.Status());
    Animation& source = read->animation;
    Animation next = *document.Current();
    if (next.frames.Empty() && document.prefs.global_setdimensions) {
        next.width = source.width;
        next.height = source.height;
    }
    KeepPauses(source, next);
    const std::vector<FramePointer> frames(source.frames.begin(), source.frames.end());
    if (InsertCopies(next, position, frames)) document.CommitModified(std::move(next));
}

// False when the work was stopped.
bool PasteGif(AnimationDocument& document, BFile& file, int32 position) {
    const int32 before = document.FrameCount();
    const bool complete = OpenGif(&file, position, document);
    if (document.FrameCount() > before) document.SetModified(true);
    return complete || !document.StopRequested();
}

// The same.
bool PasteImage(AnimationDocument& document, const std::shared_ptr<BFile>& file, int32 position,
                BTranslatorRoster& roster) {
    FrameImage image = ReadFrameImage(file, roster, document.pixel_budget, &document.work);
    if (image.status == B_CANCELED) return false;
    if (image.status != B_OK) {
        Refuse(image.status);
    } else {
        document.InsertFrameAsCurrent(position, Frame("pasted", std::move(image)));
    }
    return true;
}

}  // namespace

std::vector<uint8> PackFrames(const DocumentState& state) {
    DocumentState part = state;
    part.animation = std::make_shared<const Animation>(SelectedPart(*state.animation));
    if (part.animation->frames.Empty()) return {};
    const std::unique_ptr<BFile> file = BFile::OnMemory();
    const RecoveryFileWriter writer(*file, part, 0);
    return writer.Status() == B_OK ? file->Memory() : std::vector<uint8>();
}

std::vector<uint8> PackAsGif(const DocumentState& state) {
    Prefs settings = *state.settings;
    // Nothing is to be read for a document that is filled at once.
    settings.palette_mapping = kPaletteWebSafe;
    AnimationDocument document(settings);
    document.Commit(SelectedPart(*state.animation));
    if (document.FrameCount() == 0) return {};
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    const FaithfulGifSave save(file, document);
    return file->WriteStatus() == B_OK ? file->Memory() : std::vector<uint8>();
}

bool PasteFrames(AnimationDocument& document, const BMessage& message, BTranslatorRoster& roster) {
    std::string_view bytes;
    std::string type;
    if (message.FindData("bytes", B_RAW_TYPE, 0, &bytes) != B_OK) return true;
    if (message.FindString("type", &type) != B_OK) return true;
    const std::shared_ptr<BFile> file = BFile::OnMemory({bytes.begin(), bytes.end()});
    const int32 position = PositionIn(message, document);
    if (type == kGifType) return PasteGif(document, *file, position);
    if (type != kFramesType) return PasteImage(document, file, position, roster);
    PasteAnimation(document, *file, position);
    return true;
}

}  // namespace kirto
