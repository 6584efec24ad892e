// The operations that work on several frames at a time.
#include <limits>

#include "animation/pauses.h"
#include "base/number.h"
#include "base/text.h"
#include "document/command_codes.h"
#include "main/cli/cli_session.h"

namespace kirto {

namespace {

// The longest form of a number, with digits enough to come back as it is.
std::string TextOf(double number) {
    return Format("%.17g", number);
}

}  // namespace

CliSession::Outcome CliSession::SelectFrames(const std::string& value) {
    if (!ParseFrameSet(value, app_->FrameCount())) return RefuseFrames("--select", value);
    BMessage message(kSelectFrames);
    message.AddString("frames", value);
    return Post(message);
}

CliSession::Outcome CliSession::RefuseFrames(const char* option, const std::string& text) {
    int32 number = 0;
    const int32 count = app_->FrameCount();
    if (ParseNumber(text, &number)) {
        return Fail(Format("There is no frame %d; the animation has %d frame(s).", number, count));
    }
    if (ParseFrameSet(text, std::numeric_limits<int32>::max())) {
        return Fail(Format("There are not all frames of \"%s\"; the animation has %d frame(s).",
                           text.c_str(), count));
    }
    return Refuse(Format("%s: \"%s\" is not a list of frames such as 3, 0-9, 0,4,7 or all.", option,
                         text.c_str()));
}

CliSession::Outcome CliSession::PostPlace(uint32 command, const char* option,
                                          const std::string& text) {
    int32 position = 0;
    if (!ParseNumber(text, &position)) {
        return Refuse(Format("%s: \"%s\" is not a number.", option, text.c_str()));
    }
    if (position < 0 || position > app_->FrameCount()) {
        return Fail(Format("There is no place %d; the animation has %d frame(s).", position,
                           app_->FrameCount()));
    }
    BMessage message(command);
    message.AddInt32("position", position);
    return Post(message);
}

CliSession::Outcome CliSession::MoveTo(const std::string& value) {
    return PostPlace(kMoveFramesTo, "--move-to", value);
}

CliSession::Outcome CliSession::CopyTo(const std::string& value) {
    return PostPlace(kCopyFramesTo, "--copy-to", value);
}

CliSession::Outcome CliSession::Duplicate(const std::string&) {
    return Post(kDuplicateFrames);
}

CliSession::Outcome CliSession::ForwardAndBack(const std::string&) {
    return Post(kForwardAndBack);
}

CliSession::Outcome CliSession::StartAtCurrent(const std::string&) {
    return Post(kStartAtCurrent);
}

CliSession::Outcome CliSession::DropEvery(const std::string& value) {
    int32 number = 0;
    if (!ParseNumber(value, &number) || number < 2) {
        return Refuse("--every: \"" + value + "\" is not a number from 2 up.");
    }
    BMessage message(kDropEveryNth);
    message.AddInt32("number", number);
    return Post(message);
}

CliSession::Outcome CliSession::RemoveDuplicates(const std::string& value) {
    int32 tolerance = 0;
    if (!value.empty() && (!ParseNumber(value, &tolerance) || tolerance < 0 || tolerance > 255)) {
        return Refuse("--remove-duplicates: \"" + value + "\" is not a number from 0 to 255.");
    }
    BMessage message(kRemoveDuplicates);
    message.AddInt32("tolerance", tolerance);
    return Post(message);
}

CliSession::Outcome CliSession::SetDelay(const std::string& value) {
    const size_t colon = value.rfind(':');
    const std::string pause = colon == std::string::npos ? value : value.substr(colon + 1);
    if (!ParsePauseChange(pause)) {
        return Refuse("--delay: \"" + value + "\": expected [FRAMES:]PAUSE, such as 3-9:40ms.");
    }
    if (colon == std::string::npos) return PostPauses(pause);
    const std::string frames = value.substr(0, colon);
    if (!ParseFrameSet(frames, app_->FrameCount())) return RefuseFrames("--delay", frames);
    BMessage message(kSetPauses);
    message.AddString("pause", pause);
    message.AddString("frames", frames);
    return Post(message);
}

CliSession::Outcome CliSession::SetFramesPerSecond(const std::string& value) {
    if (!ParsePauseChange(value + "fps")) {
        return Refuse("--fps: \"" + value + "\" is not a number above 0.");
    }
    return PostPauses(value + "fps");
}

// Half the speed is twice the time.
CliSession::Outcome CliSession::SetSpeed(const std::string& value) {
    const auto speed = ParsePauseChange(value);
    if (!speed || speed->unit != PauseChange::Unit::kPercent) {
        return Refuse("--speed: \"" + value + "\": expected a percentage such as 150%.");
    }
    return PostPauses(TextOf(100 / speed->value * 100) + "%");
}

CliSession::Outcome CliSession::PostPauses(const std::string& pause) {
    BMessage message(kSetPauses);
    message.AddString("pause", pause);
    message.AddBool("all", app_->Current()->several.Empty());
    return Post(message);
}

}  // namespace kirto
