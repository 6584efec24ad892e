#include "animation/playback_schedule.h"

#include <algorithm>
#include <cmath>

#include "animation/pauses.h"

namespace kirto {

namespace {

using Duration = PlaybackSchedule::Duration;

// A value a hair below a whole number of hundredths counts as that number, as it does in files.
double AsBrowsersPlay(double hundredths) {
    constexpr double kTolerance = 1e-6;
    constexpr double kFewest = 2;
    constexpr double kInstead = 10;
    const double whole = std::floor(hundredths + kTolerance);
    return whole >= kFewest ? whole : kInstead;
}

Duration Played(double pause, const PlaybackSchedule::Options& options) {
    constexpr double kNanosecondsPerHundredth = 1e7;
    double hundredths = pause * 100 / PauseUnitsPerSecond(options.pauses_in_seconds);
    // Not a number is no pause either.
    if (!(hundredths > 0)) hundredths = 0;
    if (options.like_a_browser) hundredths = AsBrowsersPlay(hundredths);
    const auto longest = static_cast<double>(PlaybackSchedule::kLongest.count());
    const double nanoseconds = std::min(hundredths * kNanosecondsPerHundredth, longest);
    return std::max(Duration(std::llround(nanoseconds)), PlaybackSchedule::kShortest);
}

}  // namespace

PlaybackSchedule::PlaybackSchedule(const Animation& animation, const FrameSet& frames,
                                   const Options& options) {
    entries_.reserve(static_cast<size_t>(frames.Count()));
    for (const FrameSet::Range range : frames.Ranges()) {
        for (int32 i = range.first; i <= range.last; ++i) {
            const FramePointer frame = animation.frames.At(i);
            entries_.push_back({i, frame->id, length_});
            length_ += Played(animation.PauseOf(*frame), options);
        }
    }
}

Duration PlaybackSchedule::StartOf(int32 place) const {
    return place < Count() ? entries_[static_cast<size_t>(place)].start : length_;
}

int32 PlaybackSchedule::PlaceAt(Duration time) const {
    const auto after =
        std::upper_bound(entries_.begin(), entries_.end(), time,
                         [](Duration each, const Entry& entry) { return each < entry.start; });
    return std::max(static_cast<int32>(after - entries_.begin()) - 1, 0);
}

int32 PlaybackSchedule::PlaceOf(int32 frame) const {
    if (Empty()) return -1;
    const auto found =
        std::lower_bound(entries_.begin(), entries_.end(), frame,
                         [](const Entry& entry, int32 position) { return entry.frame < position; });
    return found == entries_.end() ? 0 : static_cast<int32>(found - entries_.begin());
}

int32 PlaybackSchedule::Find(FrameId id) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [id](const Entry& entry) { return entry.id == id; });
    return found == entries_.end() ? -1 : static_cast<int32>(found - entries_.begin());
}

}  // namespace kirto
