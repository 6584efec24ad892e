#include "main/cli/cli_session.h"

#include <cstdio>
#include <map>

#include "base/thread_count.h"
#include "kit/alert.h"
#include "main/cli/error_lines.h"

namespace kirto {

namespace {

// What is said before any other operation holds for the application's start as well.
bool ChangesSettings(const CliOperation& operation) {
    return operation.option == "--set" || operation.option == "--faithful";
}

}  // namespace

CliSession::CliSession(CliArguments arguments, BTranslatorRoster& roster,
                       CaptionDrawer draw_caption, Exporter exporter)
    : arguments_(std::move(arguments)),
      roster_(roster),
      draw_caption_(std::move(draw_caption)),
      export_(std::move(exporter)),
      desktop_(arguments_.salvage, arguments_.quiet, arguments_.json_errors),
      previous_presenter_(InstallAlertPresenter(&desktop_)) {}

CliSession::~CliSession() {
    running_ = nullptr;
    // The application's last reset has nobody to warn any more.
    InstallAlertPresenter(previous_presenter_);
    app_.reset();
}

int CliSession::Run() {
    following_ = arguments_.operations;
    while (!following_.empty()) {
        const CliOperation& operation = following_.front();
        following_ = following_.subspan(1);
        if (!app_ && !ChangesSettings(operation)) StartApplication();
        desktop_.SetSubject("");
        Outcome outcome = (this->*HandlerFor(operation.option))(operation.value);
        desktop_.ClearProgress();
        if (stopped_) outcome = Fail("Stopped.");
        if (outcome == Outcome::kFailed) return EndFailed();
        if (outcome == Outcome::kUsage) return End(kExitUsage, false);
    }
    return differs_ ? End(kExitFailed, false) : kExitDone;
}

int CliSession::EndFailed() {
    const bool temporary = stopped_ || desktop_.LacksMemory() || write_failed_;
    return End(temporary ? arguments_.retry_status : kExitFailed, temporary);
}

int CliSession::End(int status, bool temporary) const {
    if (arguments_.json_errors) std::fputs(StatusLine(status, temporary).c_str(), stderr);
    return status;
}

void CliSession::RequestStop() {
    stopped_ = true;
    if (AnimationDocument* document = running_) document->RequestStop();
    if (Work* work = exporting_) work->StopAll();
    if (SaveVerification* verification = verification_) verification->RequestStop();
}

void CliSession::StartApplication() {
    app_ = std::make_unique<Kirto>(prefs_, desktop_, roster_);
    // A settings file that can't be used is worth a line, but ends nothing.
    desktop_.TakeFailure();
    if (arguments_.memory_limit) app_->pixel_budget->SetLimit(*arguments_.memory_limit);
    if (arguments_.threads) SetThreadCount(*arguments_.threads);
    app_->AddHandler(&barrier_);
    app_->Run();
    running_ = app_.get();
    if (stopped_) app_->RequestStop();
}

CliSession::Outcome CliSession::Post(const BMessage& message) {
    app_->PostMessage(message);
    barrier_.Wait(*app_);
    return desktop_.TakeFailure() ? Outcome::kFailed : Outcome::kDone;
}

CliSession::Handler CliSession::HandlerFor(const std::string& option) {
    static const std::map<std::string, Handler> handlers = {
        {"--set", &CliSession::Set},
        {"--faithful", &CliSession::SetFaithful},
        {"--open", &CliSession::Open},
        {"--insert-animation", &CliSession::InsertAnimation},
        {"--video", &CliSession::RefuseVideoCut},
        {"--insert", &CliSession::InsertImages},
        {"--insert-tiled", &CliSession::InsertTiled},
        {"--fade", &CliSession::FadeFrames},
        {"--select", &CliSession::SelectFrames},
        {"--remove", &CliSession::Remove},
        {"--move-up", &CliSession::MoveUp},
        {"--move-down", &CliSession::MoveDown},
        {"--reverse", &CliSession::Reverse},
        {"--move-to", &CliSession::MoveTo},
        {"--copy-to", &CliSession::CopyTo},
        {"--duplicate", &CliSession::Duplicate},
        {"--ping-pong", &CliSession::ForwardAndBack},
        {"--shift-start", &CliSession::StartAtCurrent},
        {"--every", &CliSession::DropEvery},
        {"--remove-duplicates", &CliSession::RemoveDuplicates},
        {"--delay", &CliSession::SetDelay},
        {"--fps", &CliSession::SetFramesPerSecond},
        {"--speed", &CliSession::SetSpeed},
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
        {"--resize", &CliSession::Resize},
        {"--crop", &CliSession::Crop},
        {"--canvas", &CliSession::SetCanvas},
        {"--rotate", &CliSession::Rotate},
        {"--flip", &CliSession::Flip},
        {"--fit", &CliSession::Fit},
        {"--adjust", &CliSession::AdjustColors},
        {"--greyscale", &CliSession::MakeGreyscale},
        {"--opacity", &CliSession::SetOpacity},
        {"--overlay", &CliSession::Overlay},
        {"--text", &CliSession::DrawText},
        {"--make-transparent", &CliSession::MakeTransparent},
        {"--undo", &CliSession::Undo},
        {"--redo", &CliSession::Redo},
        {"--save", &CliSession::Save},
        {"--save-sequence", &CliSession::SaveSequence},
        {"--save-frame", &CliSession::SaveFrame},
        {"--save-sheet", &CliSession::SaveSheet},
        {"--export", &CliSession::Export},
        {"--export-set", &CliSession::SetExport},
        {"--list-formats", &CliSession::ListFormats},
        {"--preview", &CliSession::Preview},
        {"--info", &CliSession::PrintInfo},
        {"--info-json", &CliSession::PrintInfoJson},
    };
    return handlers.at(option);
}

CliSession::Outcome CliSession::Fail(const std::string& text) {
    desktop_.Complain(text);
    return Outcome::kFailed;
}

CliSession::Outcome CliSession::Refuse(const std::string& text) {
    desktop_.Complain(text);
    return Outcome::kUsage;
}

}  // namespace kirto
