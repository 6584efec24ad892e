// The operations that edit the document in memory.
#include <cmath>

#include "main/cli/cli_session.h"
#include "platform/number.h"
#include "platform/text.h"

namespace kirto {

namespace {

constexpr int32 kNoMaximum = -1;

// The kinds that have the same name for the animation and for a frame; kPaletteFromFile for others.
int32 BuiltInKind(const std::string& name) {
    if (name == "web-safe") return kPaletteWebSafe;
    if (name == "system") return kPaletteSystem;
    if (name == "greyscale") return kPaletteGreyscale;
    return kPaletteFromFile;
}

}  // namespace

CliSession::Outcome CliSession::SelectFrame(const std::string& value) {
    int32 number = 0;
    if (!ParseNumber(value, &number)) return Refuse("--select: \"" + value + "\" is no number.");
    if (!document_->FrameAt(number)) {
        return Fail(Format("There is no frame %d; the animation has %d frame(s).", number,
                           document_->FrameCount()));
    }
    document_->Select(number);
    return Outcome::kDone;
}

CliSession::Outcome CliSession::Remove(const std::string&) {
    document_->RemoveFrame();
    return Outcome::kDone;
}

CliSession::Outcome CliSession::MoveUp(const std::string&) {
    document_->MoveFrame(true);
    return Outcome::kDone;
}

CliSession::Outcome CliSession::MoveDown(const std::string&) {
    document_->MoveFrame(false);
    return Outcome::kDone;
}

CliSession::Outcome CliSession::Reverse(const std::string&) {
    document_->ReverseFrames();
    return Outcome::kDone;
}

CliSession::Outcome CliSession::SetWidth(const std::string& value) {
    return SetNumber("Width", value, &document_->global_width);
}

CliSession::Outcome CliSession::SetHeight(const std::string& value) {
    return SetNumber("Height", value, &document_->global_height);
}

CliSession::Outcome CliSession::SetLoop(const std::string& value) {
    document_->use_loop = value != "off";
    return document_->use_loop ? SetNumber("Loop count", value, &document_->loop_count)
                               : Modified();
}

CliSession::Outcome CliSession::SetPause(const std::string& value) {
    document_->use_pause_global = value != "off";
    if (!document_->use_pause_global) return Modified();
    return SetNumber("Pause length", value, &document_->pause_length_global);
}

CliSession::Outcome CliSession::SetPalette(const std::string& value) {
    Palette* palette = document_->global_palette.get();
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
    document_->global_palette->dither = value == "on";
    return Modified();
}

CliSession::Outcome CliSession::SetTransparent(const std::string& value) {
    Palette* palette = document_->global_palette.get();
    palette->use_transparent = value != "off";
    if (!palette->use_transparent) return Modified();
    return SetPaletteIndex("Transparent index", value, &palette->transparent_index);
}

CliSession::Outcome CliSession::SetBackground(const std::string& value) {
    return SetPaletteIndex("Background index", value, &document_->global_palette->background_index);
}

CliSession::Outcome CliSession::SetFrameOffset(const std::string& value) {
    Frame* frame = nullptr;
    if (FindCurrentFrame(&frame) != Outcome::kDone) return Outcome::kFailed;
    const size_t comma = value.find(',');
    if (comma == std::string::npos) return Refuse("--frame-offset: \"" + value + "\" is no X,Y.");
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
    const int32 kind = BuiltInKind(value);
    if (value == "optimal") {
        frame->palette->Set(frame->bitmap.get());
    } else if (kind == kPaletteFromFile) {
        return LoadPalette(frame->palette.get(), value);
    } else {
        frame->palette->Set(kind);
    }
    return Modified();
}

CliSession::Outcome CliSession::LoadPalette(Palette* palette, const std::string& path) {
    document_->modified = true;
    if (palette->Set(path.c_str())) return Outcome::kDone;
    palette->Set(kPaletteWebSafe);
    file_ = path;
    return Fail("The palette can't be loaded because the file was corrupted or unreadable.");
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
    const int32 largest = (1 << document_->global_palette->bits) - 1;
    const Outcome outcome = CheckInput(name, text, largest, field);
    return outcome == Outcome::kDone ? Modified() : outcome;
}

CliSession::Outcome CliSession::FindCurrentFrame(Frame** frame) {
    *frame = document_->CurrentFrame();
    return *frame ? Outcome::kDone : Fail("There is no current frame.");
}

CliSession::Outcome CliSession::Modified() {
    document_->modified = true;
    return Outcome::kDone;
}

}  // namespace kirto
