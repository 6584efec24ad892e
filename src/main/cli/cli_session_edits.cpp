// The operations that edit the document in memory.
#include <cmath>
#include <cstdio>
#include <unistd.h>

#include "document/command_codes.h"
#include "main/cli/cli_session.h"
#include "main/cli/document_info.h"
#include "platform/number.h"
#include "platform/text.h"

namespace kirto {

namespace {

constexpr int32 kNoMaximum = -1;
constexpr int32 kMaxFadeFrames = 100;

// The kinds that have the same name for the animation and for a frame; kPaletteFromFile for others.
int32 BuiltInKind(const std::string& name) {
    if (name == "web-safe") return kPaletteWebSafe;
    if (name == "system") return kPaletteSystem;
    if (name == "greyscale") return kPaletteGreyscale;
    return kPaletteFromFile;
}

uint32 FadeCommand(const std::string& mode) {
    if (mode == "to-color") return kFadeToColor;
    if (mode == "from-color") return kFadeFromColor;
    if (mode == "to-next") return kFadeToNext;
    if (mode == "from-previous") return kFadeFromPrevious;
    return 0;
}

bool ParseColor(std::string_view text, uint32* color) {
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, *color, 16);
    return text.size() == 6 && result.ec == std::errc() && result.ptr == end;
}

}  // namespace

CliSession::Outcome CliSession::Set(const std::string& value) {
    const size_t equals = value.find('=');
    if (equals == std::string::npos) return Refuse("--set: \"" + value + "\" is no KEY=VALUE.");
    std::string reason;
    if (!prefs_.SetFromText(value.substr(0, equals), value.substr(equals + 1), &reason)) {
        return Refuse("--set: " + reason);
    }
    return Outcome::kDone;
}

CliSession::Outcome CliSession::SelectFrame(const std::string& value) {
    int32 number = 0;
    if (!ParseNumber(value, &number)) return Refuse("--select: \"" + value + "\" is no number.");
    if (!app_->FrameAt(number)) {
        return Fail(Format("There is no frame %d; the animation has %d frame(s).", number,
                           app_->FrameCount()));
    }
    BMessage message(kSelectFrame);
    message.AddInt32("number", number);
    return Post(message);
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
        (second < value.size() && !ParseColor(value.substr(second + 1), &color))) {
        return Refuse("--fade: \"" + value + "\" is no MODE:COUNT[:RRGGBB].");
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
    return SetNumber("Width", value, &app_->global_width);
}

CliSession::Outcome CliSession::SetHeight(const std::string& value) {
    return SetNumber("Height", value, &app_->global_height);
}

CliSession::Outcome CliSession::SetLoop(const std::string& value) {
    app_->use_loop = value != "off";
    return app_->use_loop ? SetNumber("Loop count", value, &app_->loop_count) : Modified();
}

CliSession::Outcome CliSession::SetPause(const std::string& value) {
    app_->use_pause_global = value != "off";
    if (!app_->use_pause_global) return Modified();
    return SetNumber("Pause length", value, &app_->pause_length_global);
}

CliSession::Outcome CliSession::SetPalette(const std::string& value) {
    Palette* palette = app_->global_palette.get();
    int32 kind = BuiltInKind(value);
    if (value == "first-frame") kind = kPaletteFirstFrame;
    if (value == "current-frame") kind = kPaletteCurrentFrame;
    if (kind == kPaletteFromFile) return LoadPalette(palette, value);
    palette->Set(kind);
    // The grey ramp is never dithered, and the flag says so.
    if (kind == kPaletteGreyscale) palette->dither = false;
    return Modified();
}

CliSession::Outcome CliSession::SetDither(const std::string& value) {
    if (value != "on" && value != "off") {
        return Refuse("--dither: \"" + value + "\" is neither on nor off.");
    }
    app_->global_palette->dither = value == "on";
    return Modified();
}

CliSession::Outcome CliSession::SetTransparent(const std::string& value) {
    Palette* palette = app_->global_palette.get();
    palette->use_transparent = value != "off";
    if (!palette->use_transparent) return Modified();
    return SetPaletteIndex("Transparent index", value, &palette->transparent_index);
}

CliSession::Outcome CliSession::SetBackground(const std::string& value) {
    return SetPaletteIndex("Background index", value, &app_->global_palette->background_index);
}

CliSession::Outcome CliSession::SetFrameOffset(const std::string& value) {
    const size_t comma = value.find(',');
    if (comma == std::string::npos) return Refuse("--frame-offset: \"" + value + "\" is not X,Y.");
    Frame* frame = nullptr;
    if (FindCurrentFrame(&frame) != Outcome::kDone) return Outcome::kFailed;
    int32 x = 0;
    int32 y = 0;
    Outcome outcome = CheckInput("XOffset", value.substr(0, comma), kNoMaximum, &x);
    if (outcome == Outcome::kDone) {
        outcome = CheckInput("YOffset", value.substr(comma + 1), kNoMaximum, &y);
    }
    if (outcome != Outcome::kDone) return outcome;
    frame->x_offset = x;
    frame->y_offset = y;
    return Modified();
}

CliSession::Outcome CliSession::SetFramePause(const std::string& value) {
    Frame* frame = nullptr;
    if (FindCurrentFrame(&frame) != Outcome::kDone) return Outcome::kFailed;
    frame->use_pause = value != "off";
    return frame->use_pause ? SetNumber("Pause length", value, &frame->pause_length) : Modified();
}

CliSession::Outcome CliSession::SetFramePalette(const std::string& value) {
    Frame* frame = nullptr;
    if (FindCurrentFrame(&frame) != Outcome::kDone) return Outcome::kFailed;
    frame->local_palette = value != "off";
    if (!frame->local_palette) return Modified();
    if (value == "optimal") return Post(kFrameOptimal);
    if (value == "web-safe") return Post(kFrameWebSafe);
    if (value == "system") return Post(kFrameSystem);
    if (value == "greyscale") return Post(kFrameGreyscale);
    return LoadPalette(frame->palette.get(), value);
}

// As the windows do it: the palette waits for a file, and the next file opened is its.
CliSession::Outcome CliSession::LoadPalette(Palette* palette, const std::string& path) {
    desktop_.SetSubject(path);
    app_->modified = true;
    palette->Set(kPaletteAwaitingFile);
    BMessage message(kOpenFile);
    message.AddRef("refs", entry_ref(path));
    return Post(message);
}

CliSession::Outcome CliSession::PrintInfo(const std::string&) {
    std::fputs(DescribeDocument(*app_, isatty(STDOUT_FILENO) != 0).c_str(), stdout);
    return Outcome::kDone;
}

CliSession::Outcome CliSession::PrintInfoJson(const std::string&) {
    std::fputs(DescribeDocumentAsJson(*app_, isatty(STDOUT_FILENO) != 0).c_str(), stdout);
    return Outcome::kDone;
}

CliSession::Outcome CliSession::CheckInput(const char* name, const std::string& text, int32 maximum,
                                           int32* number) {
    int32 parsed = 0;
    if (!ParseNumber(text, &parsed)) {
        return Refuse(Format("%s: \"%s\" is no whole number.", name, text.c_str()));
    }
    if (parsed < 0) return Refuse(Format("%s can't be less than %d.", name, 0));
    if (maximum != kNoMaximum && parsed > maximum) {
        return Refuse(Format("%s can't be greater than %d.", name, maximum));
    }
    *number = parsed;
    return Outcome::kDone;
}

CliSession::Outcome CliSession::SetNumber(const char* name, const std::string& text, int32* field) {
    const Outcome outcome = CheckInput(name, text, kNoMaximum, field);
    return outcome == Outcome::kDone ? Modified() : outcome;
}

CliSession::Outcome CliSession::SetNumber(const char* name, const std::string& text,
                                          double* field) {
    double parsed = 0;
    if (!ParseNumber(text, &parsed) || !std::isfinite(parsed)) {
        return Refuse(Format("%s: \"%s\" is no number.", name, text.c_str()));
    }
    if (parsed < 0) return Refuse(Format("%s can't be less than %01.2f.", name, 0.0));
    *field = parsed;
    return Modified();
}

CliSession::Outcome CliSession::SetPaletteIndex(const char* name, const std::string& text,
                                                int32* field) {
    const int32 largest = (1 << app_->global_palette->bits) - 1;
    const Outcome outcome = CheckInput(name, text, largest, field);
    return outcome == Outcome::kDone ? Modified() : outcome;
}

CliSession::Outcome CliSession::FindCurrentFrame(Frame** frame) {
    *frame = app_->CurrentFrame();
    return *frame ? Outcome::kDone : Fail("There is no current frame.");
}

CliSession::Outcome CliSession::Modified() {
    app_->modified = true;
    return Outcome::kDone;
}

}  // namespace kirto
