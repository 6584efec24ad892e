// The operations that read and write files.
#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <unistd.h>

#include "app/open_animation.h"
#include "app/save_animation.h"
#include "app/save_verification.h"
#include "app/sequence_save.h"
#include "base/number.h"
#include "base/terminal_text.h"
#include "base/text.h"
#include "document/command_codes.h"
#include "effects/images_ahead.h"
#include "kit/alert.h"
#include "kit/entry_ref.h"
#include "kit/picture_files.h"
#include "main/cli/cli_session.h"

namespace kirto {

namespace {

// "FILE@N" as a file and a position; the whole text and -1 where it does not end in a number.
std::string SplitPosition(const std::string& value, int32* position) {
    const size_t at = value.rfind('@');
    *position = -1;
    if (at == std::string::npos || !ParseNumber(value.substr(at + 1), position)) return value;
    return value.substr(0, at);
}

// The same for an image, whose own name may end so.
std::string SplitImage(const std::string& value, int32* position) {
    std::string path = SplitPosition(value, position);
    std::error_code error;
    if (path == value || !std::filesystem::exists(value, error)) return path;
    *position = -1;
    return value;
}

std::string LowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

const translation_format* FileFormatOf(const std::vector<translation_format>& formats) {
    for (const translation_format& format : formats) {
        if (format.type != B_TRANSLATOR_BITMAP) return &format;
    }
    return nullptr;
}

}  // namespace

entry_ref CliSession::AbsoluteRef(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return entry_ref(error ? path : absolute.string());
}

CliSession::Outcome CliSession::CheckReadable(const std::string& path) {
    const BFile file(path, B_READ_ONLY);
    if (file.InitCheck() == B_OK) return Outcome::kDone;
    return Fail(path + ": " + StatusText(file.InitCheck()) + ".");
}

CliSession::Outcome CliSession::Open(const std::string& value) {
    desktop_.SetSubject(value);
    const std::string path = InputFile(value);
    if (path.empty() || CheckReadable(path) != Outcome::kDone) return Outcome::kFailed;
    const entry_ref ref = AbsoluteRef(path);
    BMessage message(kOpenFile);
    message.AddRef("refs", ref);
    const Outcome outcome = PostOpen(value, message);
    if (outcome == Outcome::kUsage) return outcome;
    // A palette file of the settings that can't be read is told of whenever the document starts
    // afresh, but that is no failure of what is opened: a document named like the file is open.
    const auto state = app_->CurrentState();
    const bool opened = state->file_directory == ref.Directory() && state->file_name == ref.Leaf();
    return opened ? Outcome::kDone : outcome;
}

CliSession::Outcome CliSession::TakeVideoCut(const std::string& path, BMessage* message) {
    const bool follows = !following_.empty() && following_.front().option == "--video";
    const std::string cut = follows ? following_.front().value : "";
    message->AddString("video", cut);
    if (!follows) return Outcome::kDone;
    if (!ParseVideoCut(cut)) {
        return Refuse("--video: \"" + cut +
                      "\": expected [START][-END][@RATE][:WxH][,crop=WxH+X+Y].");
    }
    if (ClassifyAnimation(entry_ref(path).Leaf(), "") != AnimationType::kVideo)
        return Refuse("--video: \"" + path + "\" is no video.");
    following_ = following_.subspan(1);
    return Outcome::kDone;
}

CliSession::Outcome CliSession::RefuseVideoCut(const std::string&) {
    return Refuse("--video: expected behind --open or --insert-animation.");
}

CliSession::Outcome CliSession::PostOpen(const std::string& path, BMessage message) {
    if (TakeVideoCut(path, &message) != Outcome::kDone) return Outcome::kUsage;
    const Outcome outcome = Post(message);
    if (const char* cause = TextOf(app_->Refusal())) {
        desktop_.Complain(path + ": It was refused because " + cause +
                          "; --faithful opens it as browsers do.");
    }
    return outcome;
}

CliSession::Outcome CliSession::InsertAnimation(const std::string& value) {
    int32 position = -1;
    const std::string path = SplitPosition(value, &position);
    if (path == value) return Refuse("--insert-animation: \"" + value + "\": expected FILE@N.");
    desktop_.SetSubject(path);
    const std::string file = InputFile(path);
    if (file.empty() || CheckReadable(file) != Outcome::kDone) return Outcome::kFailed;
    BMessage message(kOpenFile);
    message.AddRef("refs", AbsoluteRef(file));
    message.AddBool("reset", false);
    message.AddInt32("position", position);
    return PostOpen(path, message);
}

CliSession::Outcome CliSession::InsertImages(const std::string& value) {
    int32 position = -1;
    const std::string path = SplitImage(value, &position);
    desktop_.SetSubject(path);
    const std::string file = InputFile(path);
    if (file.empty()) return Outcome::kFailed;
    BMessage message(kInsertFiles);
    message.AddRef("refs", AbsoluteRef(file));
    message.AddInt32("position", position);
    for (const CliOperation& next :
         following_.first(std::min(following_.size(), ImagesAhead::MostFollowing()))) {
        if (next.option != "--insert" || IsStandardStream(next.value)) break;
        int32 next_position = -1;
        message.AddRef("following", AbsoluteRef(SplitImage(next.value, &next_position)));
    }
    return Post(message);
}

std::string CliSession::InputFile(const std::string& path) {
    if (path != "-") return path;
    const std::optional<std::string> file = input_.Path();
    if (!file) Fail(Format("Standard input can't be read: %s.", std::strerror(errno)));
    return file.value_or("");
}

CliSession::Outcome CliSession::SaveToStandardOutput() {
    if (isatty(STDOUT_FILENO)) return Fail("--save -: Standard output is a terminal.");
    const StandardOutput output;
    if (output.Path().empty()) return Fail(std::string("-: ") + kFileNotCreatedText);
    const Outcome outcome = SaveAs(output.Path(), 0);
    if (outcome != Outcome::kDone) return outcome;
    return output.Send() ? outcome : Fail(std::string("-: ") + kFileNotCreatedText);
}

CliSession::Outcome CliSession::Save(const std::string& value) {
    if (IsStandardStream(value)) return SaveToStandardOutput();
    const Outcome outcome = SaveAs(value, 0);
    if (outcome != Outcome::kDone) return outcome;
    const std::string cut_short = NumbersCutShort(*app_->Current(), prefs_.global_pauseinseconds);
    if (!cut_short.empty()) desktop_.Complain(value + ": Saved, but " + cut_short + ".");
    return arguments_.verify ? Verify(value) : outcome;
}

CliSession::Outcome CliSession::Verify(const std::string& path) {
    SaveVerification verification(app_->pixel_budget->Limit());
    verification_ = &verification;
    if (stopped_) verification.RequestStop();
    const SaveVerification::Result result = verification.Run(
        AbsoluteRef(path).path, *app_->Current(), SaveVerification::OptionsOf(prefs_));
    verification_ = nullptr;
    switch (result) {
        case SaveVerification::Result::kUnreadable:
            return Fail(path + ": Saved, but it can't be read to be verified.");
        case SaveVerification::Result::kNoMemory:
            return Fail(path + ": Saved, but there is not enough memory to verify it.");
        case SaveVerification::Result::kStopped:
            return Outcome::kDone;
        case SaveVerification::Result::kEqual:
        case SaveVerification::Result::kDifferent:
            break;
    }
    std::vector<std::string> sentences = verification.Differences().Sentences();
    const std::string warning = verification.Differences().Warning();
    if (!warning.empty()) sentences.push_back(warning);
    if (!sentences.empty()) desktop_.ClearProgress();
    const std::string subject = isatty(STDOUT_FILENO) ? TerminalText(path) : path;
    for (const std::string& sentence : sentences)
        std::printf("%s: %s\n", subject.c_str(), sentence.c_str());
    differs_ = differs_ || result == SaveVerification::Result::kDifferent;
    return Outcome::kDone;
}

CliSession::Outcome CliSession::SaveSequence(const std::string& value) {
    const translator_id translator = ImageWriterFor("--save-sequence", value);
    return translator == 0 ? Outcome::kUsage : SaveAs(value, translator);
}

CliSession::Outcome CliSession::SaveFrame(const std::string& value) {
    const translator_id translator = ImageWriterFor("--save-frame", value);
    if (translator == 0) return Outcome::kUsage;
    desktop_.SetSubject(value);
    const FramePointer frame = app_->CurrentFrame();
    if (!frame) return Fail("There is no current frame.");
    return WriteImage(*frame->bitmap, translator, value);
}

CliSession::Outcome CliSession::WriteImage(const Picture& picture, translator_id translator,
                                           const std::string& path) {
    const std::shared_ptr<const BBitmap> bitmap = picture.ToBitmap();
    if (bitmap->InitCheck() != B_OK) return Fail(path + ": " + kOutOfMemory);
    const std::shared_ptr<BFile> file = BFile::CreateReplacing(AbsoluteRef(path).path);
    if (file->InitCheck() != B_OK) return Fail(path + ": " + kFileNotCreatedText);
    file->RemoveLeftovers();
    const std::vector<translation_format> formats = roster_.OutputFormats(translator);
    const status_t status = WritePictureQuietly(
        bitmap, roster_, translator, FileFormatOf(formats)->type,
        roster_.DefaultSettings(translator), file, [this] { return stopped_.load(); });
    if (status == B_CANCELED) return Outcome::kFailed;
    if (status == B_OK && file->Commit() == B_OK) return Outcome::kDone;
    const bool unwritten = status == B_OK || file->WriteStatus() != B_OK;
    return Fail(path + ": " + (unwritten ? kFileNotCreatedText : kInvalidTranslatorText));
}

translator_id CliSession::ImageWriterFor(const char* option, const std::string& path) {
    const std::string extension = std::filesystem::path(path).extension().string();
    const std::string wanted = arguments_.format.empty() ? extension : arguments_.format;
    const translator_id translator = WriterNamed(wanted);
    if (translator != 0) return translator;
    Refuse(std::string(option) + ": There is no format \"" + wanted +
           "\" to write; --list-formats names them.");
    return 0;
}

CliSession::Outcome CliSession::SaveAs(const std::string& path, translator_id translator) {
    desktop_.SetSubject(path);
    const entry_ref ref = AbsoluteRef(path);
    // The document would cut the name, or take off the slash, and save under another one.
    if (path.ends_with('/') || ref.Leaf().size() > kMaxFileNameBytes) {
        return Fail(path + ": " + kFileNotCreatedText);
    }
    BMessage message(kSaveFile);
    message.AddInt64("translator_id", translator);
    message.AddRef("directory", entry_ref(ref.Directory()));
    message.AddString("name", ref.Leaf());
    const Outcome outcome = Post(message);
    // Where the folder lets files be made, the disk is what fails.
    if (outcome == Outcome::kFailed) write_failed_ = access(ref.Directory().c_str(), W_OK) == 0;
    return outcome;
}

translator_id CliSession::WriterNamed(const std::string& name) const {
    const std::string wanted = LowerCase(name);
    for (const translator_id id : roster_.Translators()) {
        const std::vector<translation_format> formats = roster_.OutputFormats(id);
        const translation_format* format = FileFormatOf(formats);
        if (!format) continue;
        if (wanted == LowerCase(format->name)) return id;
        const std::string bare = wanted.substr(wanted.rfind('.') + 1);
        for (const std::string& extension : format->extensions) {
            if (bare == extension) return id;
        }
    }
    return 0;
}

CliSession::Outcome CliSession::ListFormats(const std::string&) {
    for (const translator_id id : roster_.Translators()) {
        const std::vector<translation_format> inputs = roster_.InputFormats(id);
        const std::vector<translation_format> outputs = roster_.OutputFormats(id);
        const translation_format* output = FileFormatOf(outputs);
        const translation_format* shown = output ? output : FileFormatOf(inputs);
        if (!shown) continue;
        std::string extensions;
        for (const std::string& extension : shown->extensions)
            extensions += " ." + extension;
        std::printf("%-24s %-28s %-10s%s\n", shown->name.c_str(), shown->mime.c_str(),
                    inputs.empty() ? "write"
                    : output       ? "read/write"
                                   : "read",
                    extensions.c_str());
    }
    return Outcome::kDone;
}

CliSession::Outcome CliSession::Preview(const std::string&) {
    desktop_.SetSubject("--preview");
    return app_->FirstFrame() ? Post(kPreview) : Fail("There is no frame to preview.");
}

}  // namespace kirto
