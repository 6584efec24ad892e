#include "document/animation_document.h"

#include <algorithm>

#include "animation/arrangement.h"
#include "base/core_text.h"
#include "base/text.h"
#include "document/command_codes.h"
#include "document/document_scope.h"
#include "document/new_animation.h"
#include "kit/alert.h"

namespace {

const kirto::Picture* PictureOf(const kirto::FramePointer& frame) {
    return frame ? frame->bitmap.get() : nullptr;
}

}  // namespace

AnimationDocument::AnimationDocument(Prefs& settings, BMessenger window_messenger)
    : prefs(settings),
      window(std::move(window_messenger)),
      pixel_budget(std::make_shared<kirto::PixelBudget>()),
      work([this](uint64 piece, int64 done, int64 total) { PostProgress(piece, done, total); }) {
    kirto::DocumentState first;
    first.animation = std::make_shared<const kirto::Animation>();
    first.settings = std::make_shared<const Prefs>(prefs);
    Publish(std::move(first));
    // What can be undone is worth less than what the user is about to do.
    pixel_budget->SetReliever([this] { return history_.DropOne(); });
    Reset();
}

AnimationDocument::~AnimationDocument() {
    // Bitmaps may keep the budget longer.
    pixel_budget->SetReliever(nullptr);
}

std::shared_ptr<const kirto::DocumentState> AnimationDocument::CurrentState() const {
    const std::lock_guard lock(state_mutex_);
    return state_;
}

bool AnimationDocument::HasUnsavedChanges() const {
    // What waits is looked at first: a change that ends in between has set modified by then.
    if (insertions_waiting > 0) return true;
    const bool waiting = changes_waiting > 0;
    const auto state = CurrentState();
    return (waiting || state->modified) && !state->animation->frames.Empty();
}

void AnimationDocument::Publish(kirto::DocumentState next) {
    const auto published = std::make_shared<const kirto::DocumentState>(std::move(next));
    // Declared first: what was published before goes when nobody is locked out.
    std::shared_ptr<const kirto::DocumentState> replaced = published;
    {
        const kirto::WriterScope writer(*this);
        const std::lock_guard lock(state_mutex_);
        state_.swap(replaced);
    }
    if (observer_) observer_(published);
}

void AnimationDocument::Commit(kirto::Animation next) {
    ChangeState([&next](kirto::DocumentState& state) {
        state.animation = std::make_shared<const kirto::Animation>(std::move(next));
    });
}

void AnimationDocument::CommitModified(kirto::Animation next) {
    ChangeState([&next](kirto::DocumentState& state) {
        state.animation = std::make_shared<const kirto::Animation>(std::move(next));
        state.modified = true;
    });
}

void AnimationDocument::SetModified(bool changed) {
    ChangeState([changed](kirto::DocumentState& state) { state.modified = changed; });
}

void AnimationDocument::SetFile(const std::string& directory, const std::string& name) {
    ChangeState([&](kirto::DocumentState& state) {
        state.file_directory = directory;
        state.file_name = kirto::CutUtf8(name, kirto::kMaxFileNameBytes);
    });
}

void AnimationDocument::Restore(kirto::Animation animation, const std::string& directory,
                                const std::string& name) {
    before_step_.reset();
    history_.Clear();
    history_.ForgetSaved();
    ChangeState([&](kirto::DocumentState& state) {
        state.animation = std::make_shared<const kirto::Animation>(std::move(animation));
        state.file_directory = directory;
        state.file_name = kirto::CutUtf8(name, kirto::kMaxFileNameBytes);
        state.modified = true;
        AddHistory(state);
    });
}

void AnimationDocument::PublishSettings() {
    ChangeState([this](kirto::DocumentState& state) {
        state.settings = std::make_shared<const Prefs>(prefs);
    });
}

kirto::Moment AnimationDocument::Now() const {
    const auto state = CurrentState();
    return {state->animation, state->file_name, state->file_directory};
}

void AnimationDocument::BeginStep() {
    before_step_ = Now();
}

void AnimationDocument::EndStep(const char* name) {
    if (!before_step_) return;
    if (!name) return AbandonStep();
    kirto::Moment before = *std::exchange(before_step_, std::nullopt);
    kirto::Moment after = Now();
    if (*before.animation == *after.animation) return;
    history_.Record({name, std::move(before), std::move(after)});
    PublishHistory();
}

void AnimationDocument::EndStepWithinLast() {
    if (std::exchange(before_step_, std::nullopt)) history_.Extend(Now());
}

void AnimationDocument::StartHistory() {
    before_step_.reset();
    history_.Clear();
    PublishHistory();
}

bool AnimationDocument::Undo() {
    const std::optional<kirto::History::Step> step = history_.Undo();
    if (step) Return(step->before, step->after);
    return step.has_value();
}

bool AnimationDocument::Redo() {
    const std::optional<kirto::History::Step> step = history_.Redo();
    if (step) Return(step->after, step->before);
    return step.has_value();
}

// Makes the document what it was at the moment. It keeps its file's name, which a save may have
// given it meanwhile, unless the step itself changed that.
void AnimationDocument::Return(const kirto::Moment& moment, const kirto::Moment& from) {
    const bool other_file =
        moment.file_name != from.file_name || moment.file_directory != from.file_directory;
    ChangeState([&](kirto::DocumentState& state) {
        state.animation = moment.animation;
        if (other_file) {
            state.file_name = moment.file_name;
            state.file_directory = moment.file_directory;
        }
        state.modified = !history_.IsAtSaved();
        AddHistory(state);
    });
}

void AnimationDocument::MarkSaved() {
    history_.MarkSaved();
    SetModified(false);
}

void AnimationDocument::PublishHistory() {
    ChangeState([this](kirto::DocumentState& state) { AddHistory(state); });
}

void AnimationDocument::AddHistory(kirto::DocumentState& state) const {
    state.undo_steps = static_cast<int32>(history_.UndoSteps());
    state.undo_name = history_.UndoName();
    state.redo_name = history_.RedoName();
}

void AnimationDocument::Reset() {
    kirto::Animation fresh = kirto::NewAnimation(prefs);
    bool palette_read = true;
    if (prefs.palette_mapping == kirto::kPaletteFromFile) {
        kirto::EditPalette(fresh, [&](Palette& palette) {
            palette_read = palette.Set(prefs.palette_filename.c_str());
            if (!palette_read) palette.Set(kirto::kPaletteWebSafe);
        });
    }
    ChangeState([&fresh](kirto::DocumentState& state) {
        state.animation = std::make_shared<const kirto::Animation>(std::move(fresh));
        state.file_name = kirto::DocumentState().file_name;
        state.file_directory.clear();
        state.modified = false;
    });
    if (palette_read) return;
    kirto::Warn(CoreText::Later(
        "The palette can't be loaded because the file was corrupted or unreadable."));
    PostToWindow(kirto::kUpdateAll);
}

bool AnimationDocument::InsertFrame(int32 position, Frame frame) {
    kirto::Animation next = *Current();
    const bool first = next.frames.Empty();
    if (!kirto::InsertFrame(next, position, std::make_shared<const Frame>(std::move(frame)))) {
        return false;
    }
    Commit(std::move(next));
    PostInserted(first);
    return true;
}

void AnimationDocument::InsertFrameAsCurrent(int32 position, Frame frame) {
    kirto::Animation next = *Current();
    const bool first = next.frames.Empty();
    if (first && prefs.global_setdimensions) {
        next.width = frame.width;
        next.height = frame.height;
    }
    next.selected = std::clamp(position, 0, next.frames.Size());
    next.several = {};
    next.frames.Insert(next.selected, std::make_shared<const Frame>(std::move(frame)));
    CommitModified(std::move(next));
    PostInserted(first);
}

void AnimationDocument::PostInserted(bool first) const {
    if (first) PostThumbnailSize();
    PostToWindow(kirto::kUpdateFramesNoStatus);
}

void AnimationDocument::RemoveFrame() {
    kirto::Animation next = *Current();
    if (kirto::RemoveSelected(next)) CommitModified(std::move(next));
}

void AnimationDocument::MoveFrame(bool up) {
    kirto::Animation next = *Current();
    if (kirto::MoveSelected(next, up)) CommitModified(std::move(next));
}

void AnimationDocument::ReverseFrames() {
    kirto::Animation next = *Current();
    const bool several = !next.several.Empty();
    if (!kirto::ReverseSelected(next)) return;
    several ? CommitModified(std::move(next)) : Commit(std::move(next));
}

bool AnimationDocument::Select(int32 i) {
    kirto::Animation next = *Current();
    if (!kirto::SelectFrame(next, i)) return false;
    Commit(std::move(next));
    return true;
}

void AnimationDocument::UpdateGlobalPalette() {
    const auto before = Current();
    Palette palette = *before->palette;
    const bool updated = palette.UpdateIfNeeded(PictureOf(before->FirstFrame()),
                                                PictureOf(before->CurrentFrame()), &work);
    if (!updated || StopRequested()) return;
    Change([&palette](kirto::Animation& animation) {
        animation.palette = std::make_shared<const Palette>(palette);
    });
}

void AnimationDocument::PostStatus(const std::string& text) const {
    BMessage message(kirto::kStatusUpdate);
    message.AddString("text", text);
    window.SendMessage(message);
}

void AnimationDocument::PostProgress(uint64 piece, int64 done, int64 total) const {
    BMessage message(kirto::kWorkProgress);
    message.AddInt64("piece", static_cast<int64>(piece));
    message.AddInt64("done", done);
    message.AddInt64("total", total);
    window.SendMessage(message);
}

void AnimationDocument::PostThumbnailSize() const {
    static constexpr uint32 kCommands[] = {kirto::kThumbnailFirstFull, kirto::kThumbnailFirstHalf,
                                           kirto::kThumbnailPreset};
    const int32 choice = prefs.thumbnail_height;
    if (choice >= 0 && choice <= 2) PostToWindow(kCommands[choice]);
}
