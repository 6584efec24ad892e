#pragma once

#include <optional>

#include "animation/playback_schedule.h"
#include "base/types.h"

namespace kirto {

// Says which frame of a schedule is to be shown at a moment, and when the next one is. Everything
// is computed from the moment of the last change: whoever asks late is told of the frame that is
// due then, so delays neither add up nor move what follows. A value that knows no time but what it
// is told; moments come from one monotonic clock with any origin, and never go back.
class PlaybackClock {
  public:
    using Duration = PlaybackSchedule::Duration;
    using Instant = Duration;

    static constexpr double kSlowest = 0.1;
    static constexpr double kFastest = 4;
    static constexpr int64 kForever = 0;  // rounds

    struct Moment {
        int32 place = -1;      // in the schedule; -1 where that is empty
        Duration in_round{0};  // at the file's own speed
        int64 round = 0;       // from 0
        bool over = false;     // all rounds are: the last frame stays
        // When the next frame is due; none when it never is.
        std::optional<Instant> next;
    };

    // Plays from that place of the schedule on: so many rounds, of which this is the first, or
    // kForever. place: 0 to Count() - 1. The speed stays; at first it is that of the file.
    void Start(PlaybackSchedule schedule, int32 place, int64 rounds, Instant now);
    // From now on; clamped to what there is.
    void SetSpeed(double speed, Instant now);
    // From now on; the current round is the first of them.
    void SetRounds(int64 rounds, Instant now);
    // Goes on with an edited animation: the frame that is shown stays for what is left of its new
    // pause. If it is gone, the one in its place begins.
    void Replace(PlaybackSchedule schedule, Instant now);

    Moment At(Instant now) const;
    const PlaybackSchedule& Schedule() const { return schedule_; }
    double Speed() const { return speed_; }

  private:
    // What is played between the last change and now.
    Duration PlayedUntil(Instant now) const;
    // The first moment at which so much has been played since the last change.
    Instant MomentOf(Duration played) const;
    void ChangeAt(Instant now);

    PlaybackSchedule schedule_;
    int64 rounds_ = kForever;
    double speed_ = 1;
    // At the last change.
    Instant since_{0};
    int64 round_ = 0;
    Duration in_round_{0};
};

}  // namespace kirto
