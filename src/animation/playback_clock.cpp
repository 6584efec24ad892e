#include "animation/playback_clock.h"

#include <algorithm>
#include <cmath>

namespace kirto {

void PlaybackClock::Start(PlaybackSchedule schedule, int32 place, int64 rounds, Instant now) {
    schedule_ = std::move(schedule);
    rounds_ = rounds;
    since_ = now;
    round_ = 0;
    in_round_ = schedule_.StartOf(place);
}

void PlaybackClock::ChangeAt(Instant now) {
    const Moment moment = At(now);
    since_ = now;
    round_ = moment.round;
    in_round_ = moment.in_round;
}

void PlaybackClock::SetSpeed(double speed, Instant now) {
    ChangeAt(now);
    speed_ = std::clamp(speed, kSlowest, kFastest);
}

void PlaybackClock::SetRounds(int64 rounds, Instant now) {
    ChangeAt(now);
    round_ = 0;
    rounds_ = rounds;
}

void PlaybackClock::Replace(PlaybackSchedule schedule, Instant now) {
    const Moment moment = At(now);
    since_ = now;
    round_ = moment.round;
    Duration shown_for{0};
    int32 place = -1;
    if (moment.place >= 0) {
        place = schedule.Find(schedule_.IdAt(moment.place));
        if (place >= 0) shown_for = moment.in_round - schedule_.StartOf(moment.place);
    }
    schedule_ = std::move(schedule);
    if (schedule_.Empty()) {
        in_round_ = Duration(0);
        return;
    }
    if (place < 0) place = std::clamp(moment.place, 0, schedule_.Count() - 1);
    const Duration longest = schedule_.PauseAt(place) - Duration(1);
    in_round_ = schedule_.StartOf(place) + std::min(shown_for, longest);
}

PlaybackClock::Duration PlaybackClock::PlayedUntil(Instant now) const {
    return Duration(std::llround(static_cast<double>((now - since_).count()) * speed_));
}

PlaybackClock::Instant PlaybackClock::MomentOf(Duration played) const {
    const double real = std::ceil(static_cast<double>(played.count()) / speed_);
    Instant moment = since_ + Duration(static_cast<int64>(real));
    while (PlayedUntil(moment) < played)
        ++moment;
    return moment;
}

PlaybackClock::Moment PlaybackClock::At(Instant now) const {
    Moment moment;
    if (schedule_.Empty()) {
        moment.over = true;
        return moment;
    }
    const Duration length = schedule_.Length();
    const Duration played = PlayedUntil(now);
    const Duration total = in_round_ + played;
    moment.round = round_ + total / length;
    moment.in_round = total % length;
    if (rounds_ != kForever && moment.round >= rounds_) {
        moment.over = true;
        moment.round = rounds_ - 1;
        moment.in_round = length;
        moment.place = schedule_.Count() - 1;
        return moment;
    }
    moment.place = schedule_.PlaceAt(moment.in_round);
    const bool changes = schedule_.Count() > 1 || rounds_ != kForever;
    if (!changes) return moment;
    moment.next = MomentOf(played + schedule_.StartOf(moment.place + 1) - moment.in_round);
    return moment;
}

}  // namespace kirto
