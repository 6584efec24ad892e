#pragma once

#include <chrono>
#include <vector>

#include "animation/animation.h"
#include "animation/frame_set.h"
#include "base/types.h"

namespace kirto {

// Which frames are played in a round, in their order, and when each of them begins. A plain value.
class PlaybackSchedule {
  public:
    using Duration = std::chrono::nanoseconds;

    // The shortest pause above none that a file can tell; no frame is shown for less.
    static constexpr Duration kShortest = std::chrono::milliseconds(10);
    // Pauses may be any numbers; longer ones than this are played as if they were no longer.
    static constexpr Duration kLongest = std::chrono::hours(1);

    struct Options {
        bool pauses_in_seconds = false;  // else in hundredths of a second
        // Pauses count in whole hundredths, and those below two of them are played as ten.
        bool like_a_browser = false;
    };

    // Of no frames.
    PlaybackSchedule() = default;
    // frames: within the animation's.
    PlaybackSchedule(const Animation& animation, const FrameSet& frames, const Options& options);

    // Frames in a round. Their places in it are 0 to Count() - 1.
    int32 Count() const { return static_cast<int32>(entries_.size()); }
    bool Empty() const { return entries_.empty(); }
    // How long a round takes; above 0 unless it is empty.
    Duration Length() const { return length_; }
    // The frame's position in the animation.
    int32 FrameAt(int32 place) const { return entries_[static_cast<size_t>(place)].frame; }
    FrameId IdAt(int32 place) const { return entries_[static_cast<size_t>(place)].id; }
    // When the frame begins, from the round's start on; of place Count() when the round ends.
    Duration StartOf(int32 place) const;
    Duration PauseAt(int32 place) const { return StartOf(place + 1) - StartOf(place); }

    // The place that is shown at that time of a round, which is not empty; times before and after
    // it count as its first and last.
    int32 PlaceAt(Duration time) const;
    // The place of the frame at that position of the animation, or of the next one that is played;
    // the first behind the last, and -1 without any.
    int32 PlaceOf(int32 frame) const;
    // The place of the frame of that id, or -1.
    int32 Find(FrameId id) const;

  private:
    struct Entry {
        int32 frame;
        FrameId id;
        Duration start;
    };

    std::vector<Entry> entries_;  // by rising positions, and so by rising starts
    Duration length_{0};
};

}  // namespace kirto
