// The operations that edit the document in memory.
#include <cmath>
#include <cstdio>
#include <unistd.h>

#include "base/number.h"
#include "base/text.h"
#include "document/command_codes.h"
#include "main/cli/cli_session.h"
#include "main/cli/document_info.h"
#include "main/cli/picture_values.h"

namespace kirto {

namespace {

constexpr int32 kMaxFadeFrames = 100;

uint32 FadeCommand(const std::string& mode) {
    if (mode == "to-color") return kFadeToColor;
    if (mode == "from-color") return kFadeFromColor;
    if (mode == "to-next") return kFadeToNext;
    if (mode == "from-previous") return kFadeFromPrevious;
    return 0;
}

bool TakeColor(std::string_view text, uint32* color) {
    const std::optional<uint32> parsed = ParseColor(text);
    *color = parsed.value_or(0);
    return parsed.has_value();
}

}  // namespace

CliSession::Outcome CliSession::Set(const std::string& value) {
    const size_t equals = value.find('=');
    if (equals == std::string::npos) return Refuse("--set: \"" + value + "\": expected KEY=VALUE.");
    std::string reason;
    if (!prefs_.SetFromText(value.substr(0, equals), value.substr(equals + 1), &reason)) {
        return Refuse("--set: " + reason);
    }
    return Outcome::kDone;
}

CliSession::Outcome CliSession::SetFaithful(const std::string&) {
    return Set("animation_faithful=true");
}

CliSession::Outcome CliSession::Remove(const std::string&) {
    return Post(kRemoveFrame);
}

CliSession::Outcome CliSession::MoveUp(const std::string&) {
    return Post(kMoveFrameUp);
}

CliSession::Outcome CliSession::MoveDown(const std::string&) {
    return Post(kMoveFrameDown);
}

CliSession::Outcome CliSession::Reverse(const std::string&) {
    return Post(kReverseFrames);
}

CliSession::Outcome CliSession::FadeFrames(const std::string& value) {
    const size_t first = value.find(':');
    const size_t second = std::min(value.find(':', first + 1), value.size());
    const std::string mode = value.substr(0, first);
    const uint32 command = FadeCommand(mode);
    int32 count = 0;
    uint32 color = 0;
    if (command == 0 || first == std::string::npos ||
        !ParseNumber(value.substr(first + 1, second - first - 1), &count) ||
        (second < value.size() && !TakeColor(value.substr(second + 1), &color))) {
        return Refuse("--fade: \"" + value + "\": expected MODE:COUNT[:RRGGBB].");
    }
    if (count < 1 || count > kMaxFadeFrames) {
        return Refuse("Frame count must be between 1 and 100.");
    }
    BMessage message(command);
    message.AddInt32("count", count);
    message.AddInt32("color", static_cast<int32>(color << 8));
    const int32 frames_before = app_->FrameCount();
    const Outcome outcome = Post(message);
    if (outcome != Outcome::kDone || app_->FrameCount() > frames_before) return outcome;
    return Fail("There is no frame to fade " + mode + ".");
}

CliSession::Outcome CliSession::SetWidth(const std::string& value) {
    return PostNumber(kSetWidth, value);
}

CliSession::Outcome CliSession::SetHeight(const std::string& value) {
    return PostNumber(kSetHeight, value);
}

CliSession::Outcome CliSession::SetLoop(const std::string& value) {
    return PostSwitchedNumber(kUseLoop, kSetLoopCount, value);
}

CliSession::Outcome CliSession::SetPause(const std::string& value) {
    return PostSwitchedNumber(kUsePause, kSetPauseLength, value);
}

CliSession::Outcome CliSession::SetPalette(const std::string& value) {
    if (value == "first-frame") return Post(kPaletteToFirstFrame);
    if (value == "current-frame") return Post(kPaletteToCurrentFrame);
    if (value == "web-safe") return Post(kPaletteToWebSafe);
    if (value == "system") return Post(kPaletteToSystem);
    if (value == "greyscale") return Post(kPaletteToGreyscale);
    return LoadPalette(kPaletteToFile, value);
}

CliSession::Outcome CliSession::SetDither(const std::string& value) {
    if (value != "on" && value != "off") {
        return Refuse("--dither: \"" + value + "\": expected on or off.");
    }
    return PostSwitch(kSetDither, value == "on");
}

CliSession::Outcome CliSession::SetTransparent(const std::string& value) {
    return PostSwitchedNumber(kUseTransparent, kSetTransparentIndex, value);
}

CliSession::Outcome CliSession::SetBackground(const std::string& value) {
    return PostNumber(kSetBackgroundIndex, value);
}

CliSession::Outcome CliSession::SetFrameOffset(const std::string& value) {
    const size_t comma = value.find(',');
    if (comma == std::string::npos)
        return Refuse("--frame-offset: \"" + value + "\": expected X,Y.");
    if (CheckCurrentFrame() != Outcome::kDone) return Outcome::kFailed;
    const std::string x = value.substr(0, comma);
    const std::string y = value.substr(comma + 1);
    // Both are sound before either is set.
    int32 checked = 0;
    Outcome outcome = CheckInput(*FieldOf(kFrameSetXOffset), x, &checked);
    if (outcome == Outcome::kDone) outcome = CheckInput(*FieldOf(kFrameSetYOffset), y, &checked);
    if (outcome == Outcome::kDone) outcome = PostNumber(kFrameSetXOffset, x);
    return outcome == Outcome::kDone ? PostNumber(kFrameSetYOffset, y) : outcome;
}

CliSession::Outcome CliSession::SetFramePause(const std::string& value) {
    if (CheckCurrentFrame() != Outcome::kDone) return Outcome::kFailed;
    return PostSwitchedNumber(kFrameUsePause, kFrameSetPauseLength, value);
}

CliSession::Outcome CliSession::SetFramePalette(const std::string& value) {
    if (CheckCurrentFrame() != Outcome::kDone) return Outcome::kFailed;
    const Outcome outcome = PostSwitch(kFrameUsePalette, value != "off");
    if (outcome != Outcome::kDone || value == "off") return outcome;
    if (value == "optimal") return Post(kFrameOptimal);
    if (value == "web-safe") return Post(kFrameWebSafe);
    if (value == "system") return Post(kFrameSystem);
    if (value == "greyscale") return Post(kFrameGreyscale);
    return LoadPalette(kFramePaletteToFile, value);
}

// As the windows do it: the palette waits for a file, and the next file opened is its.
CliSession::Outcome CliSession::LoadPalette(uint32 await_command, const std::string& path) {
    desktop_.SetSubject(path);
    const Outcome outcome = Post(await_command);
    if (outcome != Outcome::kDone) return outcome;
    BMessage message(kOpenFile);
    message.AddRef("refs", entry_ref(path));
    return Post(message);
}

CliSession::Outcome CliSession::Undo(const std::string& value) {
    return PostAlongHistory(kUndo, "undo", value);
}

CliSession::Outcome CliSession::Redo(const std::string& value) {
    return PostAlongHistory(kRedo, "redo", value);
}

CliSession::Outcome CliSession::PostAlongHistory(uint32 command, const char* verb,
                                                 const std::string& text) {
    int32 count = 1;
    if (!text.empty() && (!ParseNumber(text, &count) || count < 1)) {
        return Refuse(Format("--%s: \"%s\" is not a number of changes.", verb, text.c_str()));
    }
    for (int32 i = 0; i < count; ++i) {
        const auto state = app_->CurrentState();
        if ((command == kUndo ? state->undo_name : state->redo_name).empty()) {
            return Fail(Format("There is nothing to %s.", verb));
        }
        const Outcome outcome = Post(command);
        if (outcome != Outcome::kDone) return outcome;
    }
    return Outcome::kDone;
}

CliSession::Outcome CliSession::PrintInfo(const std::string&) {
    const bool for_terminal = isatty(STDOUT_FILENO) != 0;
    std::fputs(
        DescribeDocument(DescribedState(), prefs_.global_pauseinseconds, for_terminal).c_str(),
        stdout);
    return Outcome::kDone;
}

CliSession::Outcome CliSession::PrintInfoJson(const std::string&) {
    const bool for_terminal = isatty(STDOUT_FILENO) != 0;
    std::fputs(DescribeDocumentAsJson(DescribedState(), for_terminal).c_str(), stdout);
    return Outcome::kDone;
}

DocumentState CliSession::DescribedState() const {
    DocumentState state = *app_->CurrentState();
    if (state.file_directory == kStandardInputFolder) state.file_name = "-";
    return state;
}

CliSession::Outcome CliSession::PostSwitch(uint32 command, bool on) {
    BMessage message(command);
    message.AddBool("value", on);
    return Post(message);
}

CliSession::Outcome CliSession::PostNumber(uint32 command, const std::string& text) {
    const Field& field = *FieldOf(command);
    BMessage message(command);
    Outcome outcome = Outcome::kDone;
    if (field.IsReal()) {
        double number = 0;
        outcome = CheckInput(field, text, &number);
        message.AddDouble("value", number);
    } else {
        int32 number = 0;
        outcome = CheckInput(field, text, &number);
        message.AddInt32("value", number);
    }
    return outcome == Outcome::kDone ? Post(message) : outcome;
}

CliSession::Outcome CliSession::PostSwitchedNumber(uint32 switch_command, uint32 command,
                                                   const std::string& text) {
    const Outcome outcome = PostSwitch(switch_command, text != "off");
    if (outcome != Outcome::kDone || text == "off") return outcome;
    return PostNumber(command, text);
}

CliSession::Outcome CliSession::CheckInput(const Field& field, const std::string& text,
                                           int32* number) {
    if (!ParseNumber(text, number)) {
        return Refuse(Format("%s: \"%s\" is not a whole number.", field.name, text.c_str()));
    }
    const int32 largest = field.Largest(*app_->Current());
    if (*number < 0) return Refuse(Format("%s can't be less than %d.", field.name, 0));
    if (largest >= 0 && *number > largest) {
        return Refuse(Format("%s can't be greater than %d.", field.name, largest));
    }
    return Outcome::kDone;
}

CliSession::Outcome CliSession::CheckInput(const Field& field, const std::string& text,
                                           double* number) {
    if (!ParseNumber(text, number) || !std::isfinite(*number)) {
        return Refuse(Format("%s: \"%s\" is not a number.", field.name, text.c_str()));
    }
    if (*number < 0) return Refuse(Format("%s can't be less than %01.2f.", field.name, 0.0));
    return Outcome::kDone;
}

CliSession::Outcome CliSession::CheckCurrentFrame() {
    return app_->CurrentFrame() ? Outcome::kDone : Fail("There is no current frame.");
}

}  // namespace kirto
