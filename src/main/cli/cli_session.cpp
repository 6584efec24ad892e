#include "main/cli/cli_session.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <map>

#include "app/open_animation.h"
#include "app/save_animation.h"
#include "document/document_scope.h"
#include "main/cli/document_info.h"
#include "platform/entry_ref.h"
#include "platform/number.h"

namespace kirto {

namespace {

std::string AbsolutePath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    return error ? path : absolute.lexically_normal().string();
}

}  // namespace

CliSession::CliSession(CliArguments arguments)
    : arguments_(std::move(arguments)),
      progress_(std::make_shared<ProgressLine>(!arguments_.quiet)),
      previous_presenter_(InstallAlertPresenter(this)) {
    if (!prefs_.damaged_copy.empty()) {
        Complain(prefs_.damaged_copy +
                 ": The settings file was damaged and has been put aside under this name.");
    }
    if (prefs_.failed) {
        Warn(
            "Unable to open or create a settings file. Default values will be used instead, but "
            "may not be saved.");
    }
}

CliSession::~CliSession() {
    InstallAlertPresenter(previous_presenter_);
}

int CliSession::Run() {
    for (const CliOperation& operation : arguments_.operations) {
        if (!document_ && operation.option != "--set") {
            document_ = std::make_unique<AnimationDocument>(prefs_, BMessenger(progress_));
            if (arguments_.memory_limit) {
                document_->pixel_budget->SetLimit(*arguments_.memory_limit);
            }
        }
        file_.clear();
        const Outcome outcome = (this->*HandlerFor(operation.option))(operation.value);
        progress_->Clear();
        if (outcome == Outcome::kFailed) return kExitFailed;
        if (outcome == Outcome::kUsage) return kExitUsage;
    }
    return kExitDone;
}

CliSession::Handler CliSession::HandlerFor(const std::string& option) {
    static const std::map<std::string, Handler> handlers = {
        {"--set", &CliSession::Set},
        {"--open", &CliSession::Open},
        {"--insert-animation", &CliSession::InsertAnimation},
        {"--select", &CliSession::SelectFrame},
        {"--remove", &CliSession::Remove},
        {"--move-up", &CliSession::MoveUp},
        {"--move-down", &CliSession::MoveDown},
        {"--reverse", &CliSession::Reverse},
        {"--width", &CliSession::SetWidth},
        {"--height", &CliSession::SetHeight},
        {"--loop", &CliSession::SetLoop},
        {"--pause", &CliSession::SetPause},
        {"--palette", &CliSession::SetPalette},
        {"--dither", &CliSession::SetDither},
        {"--transparent", &CliSession::SetTransparent},
        {"--background", &CliSession::SetBackground},
        {"--frame-offset", &CliSession::SetFrameOffset},
        {"--frame-pause", &CliSession::SetFramePause},
        {"--frame-palette", &CliSession::SetFramePalette},
        {"--save", &CliSession::Save},
        {"--info", &CliSession::PrintInfo},
        {"--info-json", &CliSession::PrintInfoJson},
    };
    return handlers.at(option);
}

// A question is answered by the options; the text goes to standard error.
int32 CliSession::Present(const BAlert& alert) {
    Complain(file_.empty() ? alert.Text() : file_ + ": " + alert.Text());
    if (arguments_.salvage && alert.Buttons().front() == "Salvage") return 0;
    return static_cast<int32>(alert.Buttons().size()) - 1;
}

CliSession::Outcome CliSession::Set(const std::string& value) {
    const size_t equals = value.find('=');
    if (equals == std::string::npos) return Refuse("--set: \"" + value + "\" is no KEY=VALUE.");
    std::string reason;
    if (!prefs_.SetFromText(value.substr(0, equals), value.substr(equals + 1), &reason)) {
        return Refuse("--set: " + reason);
    }
    return Outcome::kDone;
}

CliSession::Outcome CliSession::Open(const std::string& value) {
    document_->Reset();
    bool complete = false;
    const Outcome outcome = Decode(value, 0, &complete);
    if (complete) {
        const entry_ref ref(AbsolutePath(value));
        document_->file_directory = ref.Directory();
        document_->file_name = ref.Leaf();
    }
    return outcome;
}

CliSession::Outcome CliSession::InsertAnimation(const std::string& value) {
    const size_t at = value.rfind('@');
    int32 position = 0;
    if (at == std::string::npos || !ParseNumber(value.substr(at + 1), &position)) {
        return Refuse("--insert-animation: \"" + value + "\" is no FILE@N.");
    }
    position = std::clamp(position, 0, document_->FrameCount());
    bool complete = false;
    const Outcome outcome = Decode(value.substr(0, at), position, &complete);
    if (complete) document_->modified = true;
    return outcome;
}

CliSession::Outcome CliSession::Decode(const std::string& path, int32 position, bool* complete) {
    file_ = path;
    BFile file(path, B_READ_ONLY);
    if (file.InitCheck() != B_OK) return Fail(StatusText(file.InitCheck()) + ".");
    AnimationType type = ClassifyAnimation(entry_ref(path).Leaf(), "");
    if (type == AnimationType::kNone) type = ClassifyContent(&file);
    if (type == AnimationType::kNone) {
        return Fail("The animation can't be opened because this file type is unsupported.");
    }
    *complete = type == AnimationType::kGif ? OpenGif(&file, position, *document_)
                                            : OpenFli(&file, position, *document_);
    // The alert has told of the damage; what was decoded before it is all that was asked for.
    return *complete || arguments_.salvage ? Outcome::kDone : Outcome::kFailed;
}

CliSession::Outcome CliSession::Save(const std::string& value) {
    file_ = value;
    const ReaderScope reader(*document_);
    document_->UpdateGlobalPalette();
    switch (SaveAnimatedGif(*document_, value)) {
        case SaveResult::kFrameTooLarge:
            return Fail(
                "The animation can't be saved because one of the frames has a larger size than "
                "the animation.");
        case SaveResult::kFileNotCreated:
            return Fail(
                "The animation can't be saved because the file could not be created at this "
                "location.");
        case SaveResult::kWriteFailed:
            return Fail("The animation can't be saved because writing the file failed.");
        case SaveResult::kSaved:
            break;
    }
    const entry_ref ref(AbsolutePath(value));
    document_->file_directory = ref.Directory();
    document_->file_name = ref.Leaf();
    document_->modified = false;
    return Outcome::kDone;
}

CliSession::Outcome CliSession::PrintInfo(const std::string&) {
    std::fputs(DescribeDocument(*document_).c_str(), stdout);
    return Outcome::kDone;
}

CliSession::Outcome CliSession::PrintInfoJson(const std::string&) {
    std::fputs(DescribeDocumentAsJson(*document_).c_str(), stdout);
    return Outcome::kDone;
}

void CliSession::Complain(const std::string& text) {
    if (progress_) progress_->Clear();
    std::fprintf(stderr, "kirto-cli: %s\n", text.c_str());
}

CliSession::Outcome CliSession::Fail(const std::string& text) {
    Complain(file_.empty() ? text : file_ + ": " + text);
    return Outcome::kFailed;
}

CliSession::Outcome CliSession::Refuse(const std::string& text) {
    Complain(text);
    return Outcome::kUsage;
}

}  // namespace kirto
