#pragma once

#include <memory>
#include <span>
#include <string>

#include "app/export/fit_under.h"
#include "app/kirto.h"
#include "app/save_verification.h"
#include "document/field_table.h"
#include "kit/entry_ref.h"
#include "kit/idle_barrier.h"
#include "kit/translator_roster.h"
#include "main/cli/caption.h"
#include "main/cli/cli_arguments.h"
#include "main/cli/headless_desktop.h"
#include "main/cli/standard_streams.h"
#include "settings/prefs.h"

namespace kirto {

// Drives the application object through the operations of one command line: commands are posted to
// it as a window would post them, and each operation is over before the next begins. Speaks to the
// user on standard error; results go to standard output.
class CliSession {
  public:
    // The roster outlives the session. draw_caption, exporter: empty in a program without
    // texts and exports.
    CliSession(CliArguments arguments, BTranslatorRoster& roster, CaptionDrawer draw_caption,
               Exporter exporter);
    ~CliSession();

    // Runs to the end or to the first operation that fails; the program's exit status.
    int Run();

    // Ends the operation in hand, and the run with it. Safe in a signal handler.
    void RequestStop();

  private:
    enum class Outcome { kDone, kFailed, kUsage };
    using Handler = Outcome (CliSession::*)(const std::string& value);

    static Handler HandlerFor(const std::string& option);
    void StartApplication();
    // The exit status of a run whose last operation has failed.
    int EndFailed();
    // Tells programs that listen how the run ends, and returns the status.
    int End(int status, bool temporary) const;

    // Operations on files (cli_session_files.cpp).
    Outcome Open(const std::string& value);
    Outcome InsertAnimation(const std::string& value);
    Outcome RefuseVideoCut(const std::string& value);
    Outcome InsertImages(const std::string& value);
    Outcome Save(const std::string& value);
    Outcome SaveSequence(const std::string& value);
    Outcome SaveFrame(const std::string& value);
    Outcome ListFormats(const std::string& value);
    Outcome Preview(const std::string& value);

    // (cli_session_sheets.cpp)
    Outcome InsertTiled(const std::string& value);
    Outcome SaveSheet(const std::string& value);

    // (cli_session_export.cpp)
    Outcome Export(const std::string& value);
    Outcome SetExport(const std::string& value);
    Outcome Fit(const std::string& value);
    // Of the current animation by the settings, within the limit if there is one.
    ExportResult RunExport(const std::string& path, FittedExport* exported);
    // The format by the file's name, unless one is chosen. False where the name says none.
    bool TakeExportFormat(const std::string& path);
    void TellOfExport(const std::string& value, const FittedExport& exported);

    // Operations in memory (cli_session_edits.cpp).
    Outcome Set(const std::string& value);
    Outcome SetFaithful(const std::string& value);
    Outcome Remove(const std::string& value);
    Outcome MoveUp(const std::string& value);
    Outcome MoveDown(const std::string& value);
    Outcome Reverse(const std::string& value);
    Outcome FadeFrames(const std::string& value);
    Outcome SetWidth(const std::string& value);
    Outcome SetHeight(const std::string& value);
    Outcome SetLoop(const std::string& value);
    Outcome SetPause(const std::string& value);
    Outcome SetPalette(const std::string& value);
    Outcome SetDither(const std::string& value);
    Outcome SetTransparent(const std::string& value);
    Outcome SetBackground(const std::string& value);
    Outcome SetFrameOffset(const std::string& value);
    Outcome SetFramePause(const std::string& value);
    Outcome SetFramePalette(const std::string& value);
    Outcome Undo(const std::string& value);
    Outcome Redo(const std::string& value);
    Outcome PrintInfo(const std::string& value);
    Outcome PrintInfoJson(const std::string& value);

    // Operations on several frames (cli_session_arrangement.cpp).
    Outcome SelectFrames(const std::string& value);
    Outcome MoveTo(const std::string& value);
    Outcome CopyTo(const std::string& value);
    Outcome Duplicate(const std::string& value);
    Outcome ForwardAndBack(const std::string& value);
    Outcome StartAtCurrent(const std::string& value);
    Outcome DropEvery(const std::string& value);
    Outcome RemoveDuplicates(const std::string& value);
    Outcome SetDelay(const std::string& value);
    Outcome SetFramesPerSecond(const std::string& value);
    Outcome SetSpeed(const std::string& value);

    // Operations on pictures (cli_session_pictures.cpp).
    Outcome Resize(const std::string& value);
    Outcome Crop(const std::string& value);
    Outcome SetCanvas(const std::string& value);
    Outcome Rotate(const std::string& value);
    Outcome Flip(const std::string& value);
    Outcome FitFrames(const std::string& value);
    Outcome AdjustColors(const std::string& value);
    Outcome MakeGreyscale(const std::string& value);
    Outcome SetOpacity(const std::string& value);
    Outcome Overlay(const std::string& value);
    Outcome DrawText(const std::string& value);
    Outcome MakeTransparent(const std::string& value);

    // The file that the path stands for: all of standard input for "-". Empty, with the reason
    // told, where that can't be had.
    std::string InputFile(const std::string& path);
    Outcome SaveToStandardOutput();
    // The document as it is described: what came from standard input is named "-".
    DocumentState DescribedState() const;
    static entry_ref AbsoluteRef(const std::string& path);
    // Posts the command and waits until the application is idle; fails when an alert told of a
    // failure.
    Outcome Post(const BMessage& message);
    Outcome Post(uint32 what) { return Post(BMessage(what)); }
    // Posts the command that opens the file, with the part of the video that --video asks for if
    // that is the next operation. Names the cause where browsers would open what is refused.
    Outcome PostOpen(const std::string& path, BMessage message);
    // Tells the command which part of a video is wanted: all, or what --video says where it is the
    // next operation.
    Outcome TakeVideoCut(const std::string& path, BMessage* message);
    // Fails, with the reason, when the file can't be opened for reading.
    Outcome CheckReadable(const std::string& path);
    Outcome SaveAs(const std::string& path, translator_id translator);
    // The translator for the images of an option: by --format or else by the file's extension. 0
    // where there is none, which was said.
    translator_id ImageWriterFor(const char* option, const std::string& path);
    // Writes the picture into the file.
    Outcome WriteImage(const Picture& picture, translator_id translator, const std::string& path);
    // Prints how browsers will show what was saved otherwise.
    Outcome Verify(const std::string& path);
    // Posts the command that makes a palette wait for a file, then the file. True as Post.
    Outcome LoadPalette(uint32 await_command, const std::string& path);
    // Posts the command as often as the text says (once without a number), and fails where the
    // history, which calls it by that verb, ends before.
    Outcome PostAlongHistory(uint32 command, const char* verb, const std::string& text);
    // Posts the command of a switch with its value.
    Outcome PostSwitch(uint32 command, bool on);
    // Posts the command of a number, after checking the text as the windows do.
    Outcome PostNumber(uint32 command, const std::string& text);
    // For numbers that "off" switches off: posts the switch, then the number if it is one.
    Outcome PostSwitchedNumber(uint32 switch_command, uint32 command, const std::string& text);
    // A number as the field's own check lets it pass: at least 0, and at most what the field
    // allows.
    Outcome CheckInput(const Field& field, const std::string& text, int32* number);
    Outcome CheckInput(const Field& field, const std::string& text, double* number);
    // Fails without a current frame.
    Outcome CheckCurrentFrame();
    // Fails without a pixel on the canvas.
    Outcome CheckCanvas();
    // Posts an edit of the selected frames' pictures, after both checks.
    Outcome PostPictureEdit(const BMessage& message);
    // Posts the command with the place before which frames go: 0 to the number of frames.
    Outcome PostPlace(uint32 command, const char* option, const std::string& text);
    // Sets the pauses of the selected frames, or of all where only one is selected.
    Outcome PostPauses(const std::string& pause);
    // Says that the animation does not have the frames, or, with the option's name, that the text
    // does not name any.
    Outcome RefuseFrames(const char* option, const std::string& text);
    // The translator that writes the format: by its name or, with a dot, by a file's extension.
    translator_id WriterNamed(const std::string& name) const;

    Outcome Fail(const std::string& text);
    Outcome Refuse(const std::string& text);

    const CliArguments arguments_;
    std::span<const CliOperation> following_;  // those after the operation in hand
    BTranslatorRoster& roster_;
    const CaptionDrawer draw_caption_;
    const Exporter export_;
    HeadlessDesktop desktop_;
    AlertPresenter* previous_presenter_;
    Prefs prefs_;
    IdleBarrier barrier_;
    // Made just before the first operation that is no "--set", so that settings come first.
    std::unique_ptr<Kirto> app_;
    std::atomic<AnimationDocument*> running_ = nullptr;      // app_, for RequestStop
    std::atomic<SaveVerification*> verification_ = nullptr;  // that runs, for the same
    std::atomic<Work*> exporting_ = nullptr;                 // likewise
    std::atomic<bool> stopped_ = false;
    StandardInput input_;
    ExportSettings export_settings_;
    std::optional<uint64> export_limit_;  // bytes
    bool write_failed_ = false;           // where files may be written: for want of space
    bool differs_ = false;                // what was saved and verified from what was shown
};

}  // namespace kirto
