#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/types.h"

namespace kirto {

// Players that take pauses below this for none, or for long ones, are common: hundredths of a
// second.
inline constexpr int32 kLeastReliablePause = 2;

// What is said of so many frames with shorter pauses, without a full stop.
std::string SlowFramesSentence(int32 frames);

// How an animation that was saved and read again differs from what the editor shows of it. All
// zeros, but for the last number: it does not.
struct SaveDifferences {
    // A frame of each whose pictures differ, by their positions.
    struct Pair {
        int32 saved = 0;
        int32 read = 0;

        bool operator==(const Pair&) const = default;
    };
    struct Size {
        int32 width = 0;  // pixels
        int32 height = 0;

        bool operator==(const Size&) const = default;
    };
    // Times that an animation plays; 0: for ever.
    struct Plays {
        int64 saved = 0;
        int64 read = 0;

        bool operator==(const Plays&) const = default;
    };

    int32 frames = 0;       // of the editor
    int32 trailing = 0;     // of them: show what frames before have left where they are transparent
    int32 specked = 0;      // the same, of fewer pixels than are seen
    int64 most_left = 0;    // pixels that are left in one frame
    int32 filled = 0;       // have a color of their own there
    int32 holed = 0;        // are transparent where they have a color
    int32 repaused = 0;     // are shown for another time
    int64 pixels = 0;       // of all pictures that were compared
    int64 recolored = 0;    // of them: have another color
    int64 distance = 0;     // of these: the sum of the differences in red, green and blue
    int32 most_colors = 0;  // of the palettes that those were reduced to
    std::optional<int32> other_frames{};  // so many different pictures are left of the frames
    std::optional<Size> other_size{};
    std::optional<Plays> other_plays{};
    std::vector<Pair> pairs{};  // in their order
    // Frames of the file whose pauses browsers lengthen: no difference, as players show them as
    // long as they are meant to be shown.
    int32 short_pauses = 0;

    bool operator==(const SaveDifferences&) const = default;

    bool Any() const;
    // What differs and why, for a user: "28 of 56 frames will show trails", each without a full
    // stop.
    std::vector<std::string> Sentences() const;
    // What else there is to know of the file, a sentence in the same way, or "".
    std::string Warning() const;
};

}  // namespace kirto
