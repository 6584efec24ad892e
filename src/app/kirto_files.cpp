// Moving whole animations between the document and files.
#include <algorithm>
#include <filesystem>
#include <utility>

#include "app/command_port.h"
#include "app/kirto.h"
#include "app/open_animation.h"
#include "app/save_animation.h"
#include "app/sequence_save.h"
#include "base/core_text.h"
#include "base/debug_line.h"
#include "base/text.h"
#include "document/command_codes.h"
#include "kit/alert.h"

namespace {

constexpr uint32 kAnimatedGif = 0xFFFFFFFF;

constexpr int32 kOpenButton = 1;
constexpr int32 kInsertButton = 2;
constexpr int32 kDiscardButton = 1;
constexpr int32 kSaveFirstButton = 2;
constexpr int32 kOverwriteButton = 0;
constexpr int32 kSaveAsButton = 1;

// What a save writes is no WebP, PNG or video, so it must not take the file's place, nor that of
// another one: a GIF of the same name, or none.
std::string NameBeside(const entry_ref& ref) {
    const std::filesystem::path leaf(ref.Leaf());
    const std::string name = leaf.stem().string() + ".gif";
    std::error_code error;
    const bool taken =
        std::filesystem::symlink_status(kirto::PathIn(ref.Directory(), name), error).type() !=
        std::filesystem::file_type::not_found;
    return taken ? "untitled" : name;
}

bool IsGif(uint32 format) {
    return format == 0 || format == kAnimatedGif;
}

}  // namespace

void Kirto::RefsReceived(BMessage* message) {
    entry_ref ref;
    if (message->FindRef("refs", &ref) != B_OK) return;
    const bool animation =
        kirto::ClassifyFile(ref.path, desktop_.MimeTypeOf(ref.path)) != kirto::AnimationType::kNone;
    const bool dropped = message->what == B_SIMPLE_DATA;
    BMessage command = *message;
    command.what = animation ? kirto::kOpenFile : kirto::kInsertFiles;
    command.RemoveName("panel");
    command.AddBool("panel", false);
    if (animation && dropped) {
        BAlert alert(
            "",
            CoreText::Later(
                "Do you wish to insert this image into the current animation or open it as a "
                "new animation?"),
            CoreText::Later("Cancel"), CoreText::Later("Open"), CoreText::Later("Insert"),
            B_INFO_ALERT);
        const int32 answer = alert.Go();
        if (answer != kOpenButton && answer != kInsertButton) return;
        command.RemoveName("reset");
        command.AddBool("reset", answer == kOpenButton);
        command.RemoveName("ask");
        command.AddBool("ask", true);
    }
    if (kirto::CommandPort::IsCounted(*message)) kirto::CommandPort::Count(*this, &command);
    PostMessage(command);
}

void Kirto::Open(BMessage* message) {
    refusal_ = kirto::HarmlessCause::kNone;
    entry_ref ref;
    if (message->FindRef("refs", &ref) != B_OK) return;
    bool from_panel = true;
    message->FindBool("panel", &from_panel);
    if (from_panel) open_panel_delivered = true;
    if (LoadAwaitedPalette(ref.path)) return;
    std::string part;
    if (message->FindString("video", &part) != B_OK && IsVideo(ref)) {
        BMessage question = *message;
        question.what = kirto::kAskAboutVideo;
        question.RemoveName("panel");
        question.AddBool("panel", false);
        window.SendMessage(question);
        return;
    }

    bool reset = true;
    int32 position = 0;
    message->FindBool("reset", &reset);
    if (reset) {
        if (!MayOpenDropped(*message, ref.path)) return;
        StartAnew();
    } else {
        message->FindInt32("position", &position);
        position = std::clamp(position, 0, FrameCount());
    }
    Load(ref, position, reset, kirto::ParseVideoCut(part).value_or(kirto::VideoCut{}));
}

bool Kirto::IsVideo(const entry_ref& ref) const {
    return kirto::ClassifyFile(ref.path, desktop_.MimeTypeOf(ref.path)) ==
           kirto::AnimationType::kVideo;
}

// Which part of it is wanted; it comes behind the frames before the position.
void Kirto::AskAboutVideo(const entry_ref& ref, int32 position) {
    BMessage question(kirto::kAskAboutVideo);
    question.AddRef("refs", ref);
    question.AddBool("panel", false);
    question.AddBool("reset", false);
    question.AddInt32("position", position);
    window.SendMessage(question);
}

void Kirto::InsertAnimations(const BMessage& message) {
    entry_ref ref;
    for (int32 i = 0; message.FindRef("refs", &ref, i) == B_OK && !StopRequested(); ++i) {
        const int32 before = FrameCount();
        const int32 position = Selected() + 1;
        if (IsVideo(ref)) {
            AskAboutVideo(ref, position);
            continue;
        }
        Load(ref, position, false, {});
        // The next one goes behind this one.
        if (FrameCount() > before) Select(position + FrameCount() - before - 1);
    }
}

// reset: in place of a document that was emptied.
void Kirto::Load(const entry_ref& ref, int32 position, bool reset, const kirto::VideoCut& cut) {
    const kirto::AnimationType type = kirto::ClassifyFile(ref.path, desktop_.MimeTypeOf(ref.path));
    if (type == kirto::AnimationType::kNone)
        return kirto::Warn(CoreText::Later(
            "The animation can't be opened because this file type is unsupported."));
    // What a reset leaves is where the history starts. A load that is stopped is its first edit.
    if (reset) BeginStep();
    const auto before_load = Current();
    const int32 before = before_load->frames.Size();
    const std::optional<kirto::FileStamp> stamp = kirto::FileStamp::Of(ref.path);
    BFile file(ref.path, B_READ_ONLY);
    kirto::BrowsersOffer offer;
    bool opened = false;
    if (type == kirto::AnimationType::kVideo) {
        opened = kirto::OpenVideo(ref.path, cut, position, *this);
    } else if (kirto::IsAnimatedImage(type)) {
        opened = kirto::OpenAnimatedImage(type, &file, position, *this, roster_);
    } else {
        opened = kirto::OpenAnimation(type, &file, position, *this, &offer);
    }
    refusal_ = offer.cause;
    if (offer.accepted) opened = OpenAsBrowsersDo(type, &file, position, *before_load);
    if (!opened && StopRequested()) return KeepStopped(reset, before);
    if (reset) AbandonStep();
    if (!opened) return;
    if (offer.accepted) notices_.ShowOpened(!reset);
    desktop_.RememberFile(ref.path);
    if (!reset) {
        SetModified(true);
    } else if (!kirto::IsAnimatedImage(type) && type != kirto::AnimationType::kVideo) {
        SetFile(ref.Directory(), ref.Leaf(), stamp);
    } else {
        SetFile(ref.Directory(), NameBeside(ref), std::nullopt);
    }
}

// What was read is kept without the file's name: a save must not put it in the file's place. There
// is nothing to lose in it, as the file is still there.
void Kirto::KeepStopped(bool reset, int32 frames_before) {
    SayCanceled(frames_before);
    if (reset) {
        EndStep(CoreText::Later("Open"));
        MarkSaved();
    } else if (FrameCount() > frames_before) {
        SetModified(true);
    }
}

// A dropped file takes the document's place only if it is there and the document's changes may go,
// as New and Open ask for them. Where they are to be saved first, the file waits.
bool Kirto::MayOpenDropped(const BMessage& message, const std::string& path) {
    bool ask = false;
    if (message.FindBool("ask", &ask) != B_OK || !ask) return true;
    if (BFile(path, B_READ_ONLY).InitCheck() != B_OK) {
        kirto::Warn(kirto::kUnreadableAnimationText);
        return false;
    }
    if (!Modified() || FrameCount() == 0) return true;
    BAlert alert("", CoreText::Later("Do you want to save your changes?"),
                 CoreText::Later("Cancel"), CoreText::Later("Discard"), CoreText::Later("Save"));
    const int32 answer = alert.Go();
    waiting_drop_.reset();
    if (answer == kSaveFirstButton) {
        waiting_drop_ = message;
        PostToWindow(kirto::kMenuSave);
    }
    return answer == kDiscardButton;
}

// What was to follow a save does not, because there was none.
void Kirto::AbandonWaiting() {
    desktop_.AbandonPendingCommand();
    waiting_drop_.reset();
}

// Edits the palette that waits for a file: the global one, or else the current frame's. False when
// none does.
bool Kirto::EditAwaitedPalette(const std::function<void(Palette&)>& edit) {
    kirto::Animation next = *Current();
    const kirto::FramePointer frame = next.CurrentFrame();
    if (next.palette->mode == kirto::kPaletteAwaitingFile) {
        kirto::EditPalette(next, edit);
    } else if (frame && frame->palette->mode == kirto::kPaletteAwaitingFile) {
        kirto::EditFramePalette(next, next.selected, edit);
    } else {
        return false;
    }
    Commit(std::move(next));
    return true;
}

// True when a palette was waiting for this file.
bool Kirto::LoadAwaitedPalette(const std::string& path) {
    bool loaded = false;
    const bool awaited = EditAwaitedPalette([&](Palette& palette) {
        loaded = palette.Set(path.c_str());
        if (!loaded) palette.Set(kirto::kPaletteWebSafe);
    });
    if (!awaited) return false;
    SetModified(true);
    // Asking for a file and reading it are one edit.
    EndStepWithinLast();
    if (!loaded) {
        kirto::Warn(CoreText::Later(
            "The palette can't be loaded because the file was corrupted or unreadable."));
    }
    return true;
}

void Kirto::Save(BMessage* message) {
    int64 translator = 0;
    if (message->FindInt64("translator_id", &translator) != B_OK) {
        kirto::DebugLine(
            "Kirto::Save() - Could not recover translator_id from message, using animated GIF\n");
        translator = kAnimatedGif;
    }
    entry_ref directory;
    std::string name;
    if (message->FindRef("directory", &directory) != B_OK) return;
    if (message->FindString("name", &name) != B_OK) return;
    const auto before = CurrentState();
    const auto stamp_before = file_stamp_;
    SetFile(directory.path, name, std::nullopt);
    Save(static_cast<uint32>(translator));
    // A file that was not written is not the document's.
    if (save_stopped_) {
        SetFile(before->file_directory, before->file_name, stamp_before);
        UseOutputFormat(output_format_);
    } else {
        output_format_ =
            IsGif(static_cast<uint32>(translator)) ? 0 : static_cast<uint32>(translator);
    }
}

void Kirto::Save(uint32 format) {
    save_stopped_ = false;
    CloseNotice();
    UpdateGlobalPalette();
    const std::optional<BMessage> waiting = std::exchange(waiting_drop_, std::nullopt);
    if (IsGif(format)) {
        if (!SaveGif()) {
            desktop_.AbandonPendingCommand();
            return;
        }
        MarkSaved();
    } else if (SaveSequence(format)) {
        MarkSaved();
    }
    PostToWindow(kirto::kResume);
    if (waiting && !Modified()) PostMessage(*waiting);
}

void Kirto::SaveAgain() {
    const uint32 format = GetSaveFilePanel()->OutputFormat();
    if (!IsGif(format) || MayOverwrite()) Save(format);
}

std::string Kirto::FilePath() const {
    const auto state = CurrentState();
    return kirto::PathIn(state->file_directory, state->file_name);
}

bool Kirto::MayOverwrite() {
    const auto state = CurrentState();
    const auto stamp = kirto::FileStamp::Of(FilePath());
    if (!stamp || stamp == file_stamp_) return true;
    BAlert alert("",
                 CoreText::With(CoreText::tr("Another program has changed the file \"%1\" since it "
                                             "was opened or saved. Do you want to overwrite it?"),
                                {state->file_name}),
                 CoreText::Later("Overwrite"), CoreText::Later("Save As..."),
                 CoreText::Later("Cancel"));
    const int32 answer = alert.Go();
    if (answer == kSaveAsButton) {
        PostToWindow(kirto::kMenuSaveAs);
    } else if (answer != kOverwriteButton) {
        AbandonWaiting();
    }
    return answer == kOverwriteButton;
}

// False after telling the user what went wrong. The next save then asks for a name again.
bool Kirto::SaveGif() {
    const auto state = CurrentState();
    const std::string path = FilePath();
    std::string loss;
    switch (kirto::SaveAnimatedGif(*this, path, &loss)) {
        case kirto::SaveResult::kSaved:
            file_stamp_ = kirto::FileStamp::Of(path);
            desktop_.RememberFile(path);
            SayWhatDiffers(*state->animation, loss);
            CheckSave(state->animation, path);
            return true;
        case kirto::SaveResult::kStopped:
            save_stopped_ = true;
            last_word_ = CoreText::tr("saving was canceled, the file is as it was before");
            return false;
        case kirto::SaveResult::kFrameTooLarge:
            kirto::Warn(CoreText::Later(
                "The animation can't be saved because one of the frames has a larger size than the "
                "animation."));
            break;
        case kirto::SaveResult::kSizeOutOfRange:
            kirto::Warn(CoreText::With(
                CoreText::tr("The animation can't be saved because %1 is not between 0 and 65535."),
                {kirto::SizeOutOfRange(*state->animation)}));
            break;
        case kirto::SaveResult::kFileNotCreated:
        case kirto::SaveResult::kWriteFailed:
            kirto::Warn(kirto::kFileNotCreatedText);
            break;
    }
    SetFile("", "untitled", std::nullopt);
    return false;
}

// What the file had no room for, and what browsers show otherwise.
void Kirto::SayWhatDiffers(const kirto::Animation& animation, const std::string& loss) {
    const std::string cut = kirto::NumbersCutShort(animation, prefs.global_pauseinseconds);
    const std::string both = loss.empty() || cut.empty() ? "" : ", ";
    if (!loss.empty() || !cut.empty())
        last_word_ = CoreText::With(CoreText::tr("saved, but %1"), {loss + both + cut});
}

void Kirto::SetFile(const std::string& directory, const std::string& name,
                    const std::optional<kirto::FileStamp>& stamp) {
    SetFile(directory, name);
    file_stamp_ = stamp;
}

uint32 Kirto::FileFormat(translator_id translator) const {
    for (const translation_format& format : roster_.OutputFormats(translator)) {
        if (format.type != B_TRANSLATOR_BITMAP) return format.type;
    }
    return 0;
}

bool Kirto::SaveSequence(uint32 translator) {
    std::string translator_name;
    if (!roster_.GetTranslatorInfo(translator, &translator_name)) {
        kirto::Warn(kirto::kInvalidTranslatorText);
        return false;
    }
    const uint32 format = FileFormat(translator);
    if (format == 0) {
        kirto::DebugLine("Kirto::SaveSequence() - Desired format is 0, this is not good\n");
    }
    const int32 count = FrameCount();
    kirto::SequenceSave save(*this, roster_, {translator, format, translator_settings[translator]});
    const status_t status = save.Save();
    if (status == B_CANCELED) {
        save_stopped_ = true;
        last_word_ = CoreText::With(CoreText::tr("saving was canceled, %1 of %2 file(s) written"),
                                    {std::to_string(save.Written()), std::to_string(count)});
    }
    return status == B_OK;
}
