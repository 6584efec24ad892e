#include "app/arrangement_commands.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string>

#include "animation/arrangement.h"
#include "animation/pauses.h"
#include "base/core_text.h"
#include "document/command_codes.h"

namespace kirto {

namespace {

struct Row {
    uint32 code;
    const char* name;
    // Returns whether anything has changed.
    bool (*apply)(Animation& animation, const BMessage& message, AnimationDocument& document);
};

int32 NumberIn(const BMessage& message, const char* field, int32 otherwise) {
    int32 number = otherwise;
    message.FindInt32(field, &number);
    return number;
}

bool SwitchIn(const BMessage& message, const char* field, bool otherwise) {
    bool on = otherwise;
    message.FindBool(field, &on);
    return on;
}

// The frames that the message names, or else the selected ones; empty when there are no such
// frames.
std::optional<FrameSet> FramesIn(const BMessage& message, const Animation& animation) {
    std::string text;
    if (message.FindString("frames", &text) != B_OK) return animation.Selection();
    return ParseFrameSet(text, animation.frames.Size());
}

// Makes the frames that the message names the selected ones.
bool SelectNamed(Animation& animation, const BMessage& message) {
    const std::optional<FrameSet> frames = FramesIn(message, animation);
    if (!frames || frames->Empty()) return false;
    kirto::SelectFrames(animation, *frames, animation.selected);
    return true;
}

bool MoveTo(Animation& animation, const BMessage& message, AnimationDocument&) {
    return SelectNamed(animation, message) &&
           MoveSelectedTo(animation, NumberIn(message, "position", -1));
}

bool CopyTo(Animation& animation, const BMessage& message, AnimationDocument&) {
    return SelectNamed(animation, message) &&
           CopySelectedTo(animation, NumberIn(message, "position", -1));
}

bool Duplicate(Animation& animation, const BMessage&, AnimationDocument&) {
    return CopySelectedTo(animation, animation.Selection().Last() + 1);
}

bool ForwardAndBack(Animation& animation, const BMessage&, AnimationDocument&) {
    return PlayForwardAndBack(animation);
}

bool MergeDuplicates(Animation& animation, const BMessage& message, AnimationDocument& document) {
    const int32 tolerance = std::clamp(NumberIn(message, "tolerance", 0), 0, 255);
    return RemoveDuplicates(animation, tolerance, &document.work);
}

bool Drop(Animation& animation, const BMessage& message, AnimationDocument&) {
    return DropEveryNth(animation, NumberIn(message, "number", 0));
}

bool Rotate(Animation& animation, const BMessage&, AnimationDocument&) {
    return StartAtCurrent(animation);
}

bool SetPauses(Animation& animation, const BMessage& message, AnimationDocument& document) {
    std::string text;
    message.FindString("pause", &text);
    std::optional<PauseChange> change = ParsePauseChange(text);
    const std::optional<FrameSet> frames = FramesIn(message, animation);
    if (!change || !frames) return false;
    change->own_pauses = SwitchIn(message, "own", true);
    const double units = PauseUnitsPerSecond(document.prefs.global_pauseinseconds);
    return SwitchIn(message, "all", false) ? ChangePauseOfAll(animation, *change, units)
                                           : ChangePauses(animation, *frames, *change, units);
}

constexpr Row kRows[] = {
    {kMoveFramesTo, CoreText::Later("Move Frames"), MoveTo},
    {kCopyFramesTo, CoreText::Later("Copy Frames"), CopyTo},
    {kDuplicateFrames, CoreText::Later("Duplicate"), Duplicate},
    {kForwardAndBack, CoreText::Later("Forward and Back"), ForwardAndBack},
    {kRemoveDuplicates, CoreText::Later("Remove Duplicates"), MergeDuplicates},
    {kDropEveryNth, CoreText::Later("Drop Every Nth"), Drop},
    {kStartAtCurrent, CoreText::Later("Shift Start"), Rotate},
    {kSetPauses, CoreText::Later("Set Pause"), SetPauses},
};

const Row* RowOf(uint32 code) {
    const auto* found = std::find_if(std::begin(kRows), std::end(kRows),
                                     [code](const Row& row) { return row.code == code; });
    return found == std::end(kRows) ? nullptr : found;
}

}  // namespace

const char* ArrangementName(uint32 code) {
    const Row* row = RowOf(code);
    return row ? row->name : nullptr;
}

bool ApplyArrangement(AnimationDocument& document, const BMessage& message) {
    const Row* row = RowOf(message.what);
    if (!row) return false;
    Animation next = *document.Current();
    if (row->apply(next, message, document)) document.CommitModified(std::move(next));
    return true;
}

bool SelectFrames(AnimationDocument& document, const BMessage& message) {
    std::string text;
    Animation next = *document.Current();
    const int32 current = NumberIn(message, "current", next.selected);
    if (message.FindString("frames", &text) != B_OK) return false;
    std::optional<FrameSet> frames = ParseFrameSet(text, next.frames.Size());
    if (!frames || !SelectFrames(next, std::move(*frames), current)) return false;
    document.Commit(std::move(next));
    return true;
}

}  // namespace kirto
