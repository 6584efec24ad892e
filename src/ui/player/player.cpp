#include "ui/player/player.h"

#include <algorithm>

#include "document/command_codes.h"

namespace kirto {

namespace {

using Instant = PlaybackClock::Instant;

Instant SteadyNow() {
    return std::chrono::steady_clock::now().time_since_epoch();
}

FrameId IdOf(const FramePointer& frame) {
    return frame ? frame->id : 0;
}

}  // namespace

Player::Player(const ShownDocument& shown, BMessenger commands, std::function<void()> changed,
               QObject* parent)
    : QObject(parent),
      shown_(shown),
      commands_(std::move(commands)),
      changed_(std::move(changed)),
      now_(SteadyNow),
      timer_(this) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, this, [this] { Tick(); });
}

PlaybackSchedule Player::MakeSchedule() const {
    const Animation& animation = shown_.Current();
    const bool some = plays_selection_ && !animation.several.Empty();
    return {animation,
            some ? animation.several : FrameSet::AllOf(animation.frames.Size()),
            {.pauses_in_seconds = shown_.Settings().global_pauseinseconds,
             .like_a_browser = like_a_browser_}};
}

// A file's count says how often the animation is repeated after it was played once.
int64 Player::Rounds() const {
    const Animation& animation = shown_.Current();
    if (loop_ == Loop::kAlways) return PlaybackClock::kForever;
    if (loop_ == Loop::kOnce || !animation.use_loop) return 1;
    if (animation.loop_count <= 0) return PlaybackClock::kForever;
    return int64{animation.loop_count} + 1;
}

void Player::StartAt(int32 frame) {
    const PlaybackSchedule schedule = MakeSchedule();
    clock_.Start(schedule, std::max(schedule.PlaceOf(frame), 0), Rounds(), now_());
    at_end_ = false;
}

void Player::UpdateDisplay() {
    const FrameId before = std::exchange(current_, IdOf(shown_.CurrentFrame()));
    const bool chosen = current_ != before && !WasAskedFor(current_);
    if (shown_.Frames().Empty()) playing_ = false;
    if (playing_ && !(chosen && shown_.Frames().Find(before) >= 0) && IsSameAnimation()) {
        clock_.Replace(MakeSchedule(), now_());
        return Follow();
    }
    const bool exists = frame_ >= 0 && frame_ < shown_.FrameCount();
    if (playing_ || chosen || !exists) frame_ = shown_.Selected();
    StartAt(frame_);
    if (playing_) return Follow();
    timer_.stop();
    changed_();
}

// Answers come in the order of the questions, but several of them may come as one.
bool Player::WasAskedFor(FrameId current) {
    const auto asked = std::find(asked_.begin(), asked_.end(), current);
    const bool was_asked_for = asked != asked_.end();
    asked_.erase(asked_.begin(), was_asked_for ? asked + 1 : asked_.end());
    return was_asked_for;
}

bool Player::IsSameAnimation() const {
    const int32 place = Schedule().PlaceOf(frame_);
    return place >= 0 && shown_.Frames().Find(Schedule().IdAt(place)) >= 0;
}

void Player::Play() {
    if (playing_ || shown_.Frames().Empty()) return;
    StartAt(at_end_ ? Schedule().FrameAt(0) : frame_);
    playing_ = true;
    Follow();
}

void Player::Pause() {
    if (!playing_) return;
    playing_ = false;
    timer_.stop();
    Select(frame_);
    changed_();
}

void Player::SetSeen(bool seen) {
    if (seen == seen_) return;
    seen_ = seen;
    if (!playing_) return;
    timer_.stop();
    if (!seen_) return;
    clock_.Start(Schedule(), std::max(Schedule().PlaceOf(frame_), 0), Rounds(), now_());
    Follow();
}

void Player::Tick() {
    if (playing_ && seen_) Follow();
}

// Shows what is due now, and waits for what is due next.
void Player::Follow() {
    if (!seen_) return;
    const PlaybackClock::Moment moment = clock_.At(now_());
    frame_ = moment.place < 0 ? -1 : Schedule().FrameAt(moment.place);
    at_end_ = moment.over;
    if (moment.over) return Pause();
    Wait(moment.next);
    changed_();
}

// Never before the moment, or it would be in vain; a timer counts in milliseconds.
void Player::Wait(std::optional<Instant> until) {
    timer_.stop();
    if (!until) return;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*until - now_());
    timer_.start(std::max(left, std::chrono::milliseconds(0)));
}

void Player::ToStart() {
    if (!Schedule().Empty()) ShowFrame(Schedule().FrameAt(0));
}

void Player::ToEnd() {
    if (!Schedule().Empty()) ShowFrame(Schedule().FrameAt(Schedule().Count() - 1));
}

void Player::Step(int32 frames) {
    if (Schedule().Empty()) return;
    const int32 place = Schedule().PlaceOf(frame_) + frames;
    ShowFrame(Schedule().FrameAt(std::clamp(place, 0, Schedule().Count() - 1)));
}

void Player::ShowFrame(int32 frame) {
    Peek(frame);
    Select(frame);
}

void Player::Peek(int32 frame) {
    playing_ = false;
    at_end_ = false;
    timer_.stop();
    frame_ = frame;
    changed_();
}

// Several frames stay selected as long as this is one of them.
void Player::Select(int32 frame) {
    const FrameSet& several = shown_.Current().several;
    const bool is_selected = asked_.empty() && frame == shown_.Selected();
    if (frame < 0 || is_selected || (!several.Empty() && !several.Contains(frame))) return;
    BMessage select(several.Empty() ? kSelectFrame : kSelectFrames);
    if (several.Empty()) {
        select.AddInt32("number", frame);
    } else {
        select.AddString("frames", TextOf(several));
        select.AddInt32("current", frame);
    }
    asked_.push_back(IdOf(shown_.Frames().At(frame)));
    commands_.SendMessage(select);
}

void Player::SetLoop(Loop loop) {
    loop_ = loop;
    clock_.SetRounds(Rounds(), now_());
    if (playing_) Follow();
}

void Player::SetSpeed(double speed) {
    clock_.SetSpeed(speed, now_());
    if (playing_) Follow();
}

void Player::SetPlaysSelection(bool selection) {
    plays_selection_ = selection;
    Reschedule();
}

void Player::SetLikeABrowser(bool like_a_browser) {
    like_a_browser_ = like_a_browser;
    Reschedule();
}

void Player::Reschedule() {
    if (playing_) {
        clock_.Replace(MakeSchedule(), now_());
        Follow();
    } else {
        StartAt(frame_);
        changed_();
    }
}

PlaybackSchedule::Duration Player::Time() const {
    const int32 place = Schedule().PlaceOf(frame_);
    return place < 0 ? PlaybackSchedule::Duration(0) : Schedule().StartOf(place);
}

std::vector<int32> Player::Upcoming(int32 most) const {
    std::vector<int32> frames;
    if (frame_ < 0) return frames;
    frames.push_back(frame_);
    const int32 count = Schedule().Count();
    const int32 first = Schedule().PlaceOf(frame_);
    for (int32 i = 1; i < std::min(most, count); ++i)
        frames.push_back(Schedule().FrameAt((first + i) % count));
    return frames;
}

}  // namespace kirto
