#pragma once

#include <memory>
#include <optional>
#include <string>

#include "document/animation_document.h"
#include "main/cli/cli_arguments.h"
#include "main/cli/progress_line.h"
#include "platform/alert.h"
#include "platform/file.h"
#include "settings/prefs.h"

namespace kirto {

// Carries out the operations of one command line, in order, on one document. Speaks to the user on
// standard error, each line opening with the program's name; results go to standard output.
class CliSession : private AlertPresenter {
  public:
    explicit CliSession(CliArguments arguments);
    ~CliSession() override;

    // Runs to the end or to the first operation that fails; the program's exit status.
    int Run();

  private:
    enum class Outcome { kDone, kFailed, kUsage };
    using Handler = Outcome (CliSession::*)(const std::string& value);

    static Handler HandlerFor(const std::string& option);
    int32 Present(const BAlert& alert) override;

    Outcome Set(const std::string& value);
    Outcome Open(const std::string& value);
    Outcome InsertAnimation(const std::string& value);
    Outcome SelectFrame(const std::string& value);
    Outcome Remove(const std::string& value);
    Outcome MoveUp(const std::string& value);
    Outcome MoveDown(const std::string& value);
    Outcome Reverse(const std::string& value);
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
    Outcome Save(const std::string& value);
    Outcome PrintInfo(const std::string& value);
    Outcome PrintInfoJson(const std::string& value);

    // Decodes the animation at path into the document from the position on; *complete tells whether
    // all of it was sound.
    Outcome Decode(const std::string& path, int32 position, bool* complete);
    Outcome LoadPalette(Palette* palette, const std::string& path);
    // Numbers as the windows check them: at least 0 and, where maximum is not -1, at most that.
    Outcome CheckInput(const char* name, const std::string& text, int32 maximum, int32* number);
    // Check the number, store it and mark the document modified.
    Outcome SetNumber(const char* name, const std::string& text, int32* field);
    Outcome SetNumber(const char* name, const std::string& text, double* field);
    Outcome SetPaletteIndex(const char* name, const std::string& text, int32* field);
    // Fails without a current frame.
    Outcome FindCurrentFrame(Frame** frame);
    Outcome Modified();

    void Complain(const std::string& text);
    Outcome Fail(const std::string& text);
    Outcome Refuse(const std::string& text);

    CliArguments arguments_;
    Prefs prefs_;
    std::shared_ptr<ProgressLine> progress_;
    // Made just before the first operation that is no "--set", so that settings come first.
    std::unique_ptr<AnimationDocument> document_;
    std::string file_;  // what the operation in hand works on, for messages
    AlertPresenter* previous_presenter_;
};

}  // namespace kirto
