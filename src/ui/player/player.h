#pragma once

#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>

#include "animation/playback_clock.h"
#include "kit/messenger.h"
#include "ui/controls/shown_document.h"

namespace kirto {

// Plays the animation that is shown: knows the frame that is to be seen now, and wakes up when it
// is another one. What is seen without playing is the current frame; where playing stops, that
// frame becomes the current one. It uses no time while it neither plays nor is told anything. GUI
// thread.
class Player : public QObject {
  public:
    enum class Loop { kAsSaved, kAlways, kOnce };
    using Now = std::function<PlaybackClock::Instant()>;

    // commands: where frames are selected. changed: called when the frame that is to be seen, or
    // anything else here, is another one. shown and the clock outlive this.
    Player(const ShownDocument& shown, BMessenger commands, std::function<void()> changed,
           QObject* parent = nullptr);

    // Follows the document that is shown now.
    void UpdateDisplay();

    // From the frame that is seen on, or from the start where the last round is over.
    void Play();
    void Pause();
    void Toggle() { playing_ ? Pause() : Play(); }
    bool IsPlaying() const { return playing_; }
    // While nobody can see it, it waits where it is.
    void SetSeen(bool seen);

    // These end playing, and make another frame the current one.
    void ToStart();
    void ToEnd();
    // frames: forward, or backward below 0; stays within those that are played.
    void Step(int32 frames);
    // frame: 0 to FrameCount() - 1.
    void ShowFrame(int32 frame);
    // Shows the frame without making it the current one, while the playhead is dragged.
    void Peek(int32 frame);

    void SetLoop(Loop loop);
    void SetSpeed(double speed);
    // The selected frames, if there are several; else all.
    void SetPlaysSelection(bool selection);
    void SetLikeABrowser(bool like_a_browser);
    Loop LoopMode() const { return loop_; }
    double Speed() const { return clock_.Speed(); }
    bool PlaysSelection() const { return plays_selection_; }
    bool IsLikeABrowser() const { return like_a_browser_; }

    // The frame that is to be seen; -1 without frames.
    int32 Frame() const { return frame_; }
    const PlaybackSchedule& Schedule() const { return clock_.Schedule(); }
    // When the frame begins and when the round ends.
    PlaybackSchedule::Duration Time() const;
    PlaybackSchedule::Duration Length() const { return Schedule().Length(); }
    // The frame that is seen and those that come then, in their order; each once.
    std::vector<int32> Upcoming(int32 most) const;

    // A steady clock unless a test sets another one.
    void SetNow(Now now) { now_ = std::move(now); }
    // What the timer does.
    void Tick();

  private:
    PlaybackSchedule MakeSchedule() const;
    int64 Rounds() const;
    void StartAt(int32 frame);
    void Follow();
    void Reschedule();
    bool WasAskedFor(FrameId current);
    bool IsSameAnimation() const;
    void Wait(std::optional<PlaybackClock::Instant> until);
    void Select(int32 frame);

    const ShownDocument& shown_;
    const BMessenger commands_;
    const std::function<void()> changed_;
    Now now_;
    PlaybackClock clock_;
    QTimer timer_;
    Loop loop_ = Loop::kAsSaved;
    bool plays_selection_ = false;
    bool like_a_browser_ = false;
    bool playing_ = false;
    bool seen_ = true;
    bool at_end_ = false;  // the last round is over
    int32 frame_ = -1;
    FrameId current_ = 0;        // the current frame when the document was last looked at
    std::deque<FrameId> asked_;  // to become the current frame, and have not yet
};

}  // namespace kirto
