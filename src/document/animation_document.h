#pragma once

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "animation/animation.h"
#include "base/types.h"
#include "base/work.h"
#include "document/document_lock.h"
#include "document/document_state.h"
#include "document/history.h"
#include "kit/messenger.h"
#include "settings/prefs.h"

// The open document: the owner of the one current animation. What it owns is constant; a change is
// a new animation that takes the current one's place. Changes are made on one thread, the
// application's, and any thread may read the state of the last change without waiting.
class AnimationDocument : public DocumentLock {
  public:
    // Pending commands that will change the document, and those of them that may bring frames. A
    // command is uncounted after it has set modified.
    std::atomic<int32> changes_waiting = 0;
    std::atomic<int32> insertions_waiting = 0;

    // The settings must outlive the document. window receives the refresh commands; it may be
    // invalid. Calls Reset() last.
    explicit AnimationDocument(Prefs& settings, BMessenger window_messenger = {});
    virtual ~AnimationDocument();

    Prefs& prefs;  // the application thread's; others read the copy in the state
    BMessenger window;
    // Counts the pixel memory of this document's frames.
    const std::shared_ptr<kirto::PixelBudget> pixel_budget;

    // The document as it is now. Thread-safe; never null; never waits for a change to be made.
    std::shared_ptr<const kirto::DocumentState> CurrentState() const;
    std::shared_ptr<const kirto::Animation> Current() const { return CurrentState()->animation; }
    int32 FrameCount() const { return Current()->frames.Size(); }
    kirto::FramePointer FirstFrame() const { return Current()->FirstFrame(); }
    kirto::FramePointer FrameAt(int32 i) const { return Current()->frames.At(i); }
    kirto::FramePointer CurrentFrame() const { return Current()->CurrentFrame(); }
    int32 Selected() const { return Current()->selected; }
    bool Modified() const { return CurrentState()->modified; }
    // Whom to hand each new state to, on the application's thread; null for nobody. Set while the
    // application's loop does not run.
    using Observer = std::function<void(const std::shared_ptr<const kirto::DocumentState>&)>;
    void SetObserver(Observer observer) { observer_ = std::move(observer); }
    // True when there are unsaved changes, made or pending. An animation without frames has nothing
    // to lose, but pending frames count already.
    bool HasUnsavedChanges() const;

    // Everything below is for the application's thread only.

    // Makes next the document's animation, as the lock's writer. The modified flag stays, or is
    // set.
    void Commit(kirto::Animation next);
    void CommitModified(kirto::Animation next);
    // Commits a copy of the current animation that edit has changed.
    template <typename Edit>
    void Change(Edit edit) {
        kirto::Animation next = *Current();
        edit(next);
        Commit(std::move(next));
    }
    void SetModified(bool changed);
    // The name is cut at a whole UTF-8 character where it is too long.
    void SetFile(const std::string& directory, const std::string& name);
    // Puts a document that was never saved like this in place of the current one: it is modified,
    // and stays so whatever is undone. A new history.
    void Restore(kirto::Animation animation, const std::string& directory, const std::string& name);
    // Publishes the current settings as part of the state.
    void PublishSettings();

    // Empties the document and takes its properties from the settings. An unreadable palette file
    // is reported by an alert, and the palette becomes web safe.
    void Reset();
    // Inserts the frame at the position and posts 'auns' (before it, where the list was empty, the
    // thumbnail-size command). False: the position is outside 0..FrameCount(), nothing happened.
    bool InsertFrame(int32 position, Frame frame);
    // Inserts the frame at the position, clamped to the list, and makes it the current frame; the
    // document is modified then. Into an empty list it also gives the canvas its size, where the
    // setting "global_setdimensions" says so. Posts as InsertFrame does.
    void InsertFrameAsCurrent(int32 position, Frame frame);
    // Removes the current frame, or all selected ones.
    void RemoveFrame();
    // Swaps the current frame, or each selected one, with the one before (up) or after it; the
    // selection follows.
    void MoveFrame(bool up);
    // Reverses the list; the selection keeps its number, modified stays. Where several frames are
    // selected they alone are reversed, and the document is modified.
    void ReverseFrames();
    // Makes frame i current and the only one selected; true only if the selection changed.
    bool Select(int32 i);
    // Updates the global palette from the first or the current frame, if its kind says so and the
    // work is not stopped meanwhile.
    void UpdateGlobalPalette();

    // The history of edits. What happens between BeginStep and EndStep is one edit of that name. It
    // is not recorded if the animation is the same afterward, or if the name is null.
    void BeginStep();
    void EndStep(const char* name);
    // Adds what happened since BeginStep to the edit before it.
    void EndStepWithinLast();
    // Ends the step without recording it.
    void AbandonStep() { before_step_.reset(); }
    // Forgets all edits; what happens until EndStep is not recorded.
    void StartHistory();
    // Return true when there was an edit to undo or redo. The document counts as modified unless it
    // is back in its saved state.
    bool Undo();
    bool Redo();
    // The document has been written to its file: it is not modified.
    void MarkSaved();

    // Posts a command without fields to the window.
    void PostToWindow(uint32 what) const { window.SendMessage(what); }
    // Posts the progress text that the status line shows.
    void PostStatus(const std::string& text) const;
    // Posts the thumbnail-size command that the setting "thumbnail_height" asks for, if any.
    void PostThumbnailSize() const;

    // The command that is being carried out: how far it is, which the window is told by 'awrk', and
    // whether it is to end early. What is done by then is kept.
    kirto::Work work;
    // Stops it and all that follow. Safe in a signal handler.
    void RequestStop() { work.StopAll(); }
    bool StopRequested() const { return work.StopRequested(); }

  private:
    void PostInserted(bool first) const;
    void PostProgress(uint64 piece, int64 done, int64 total) const;
    kirto::Moment Now() const;
    void PublishHistory();
    void AddHistory(kirto::DocumentState& state) const;
    void Return(const kirto::Moment& moment, const kirto::Moment& from);
    void Publish(kirto::DocumentState next);
    template <typename Edit>
    void ChangeState(Edit edit) {
        kirto::DocumentState next = *CurrentState();
        edit(next);
        Publish(std::move(next));
    }

    Observer observer_;
    kirto::History history_;
    std::optional<kirto::Moment> before_step_;  // while a step is being made
    mutable std::mutex state_mutex_;            // held for as long as a pointer is copied
    std::shared_ptr<const kirto::DocumentState> state_;
};
