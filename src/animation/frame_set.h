#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/types.h"

namespace kirto {

// A set of positions in a list of frames. A value, kept as ranges, so that thousands of neighbors
// cost no more than one frame.
class FrameSet {
  public:
    struct Range {
        int32 first = 0;
        int32 last = 0;  // included; at least first
        bool operator==(const Range&) const = default;
    };

    FrameSet() = default;
    // first..last, both included; every step-th of them, beginning with the first. Empty when last
    // comes before first. first: 0 or more; step: 1 or more.
    static FrameSet Of(int32 first, int32 last, int32 step = 1);
    // Of a list of so many frames.
    static FrameSet AllOf(int32 frames) { return Of(0, frames - 1); }

    // Ascending; neither overlapping nor adjacent.
    const std::vector<Range>& Ranges() const { return ranges_; }
    bool Empty() const { return ranges_.empty(); }
    int32 Count() const;
    bool Contains(int32 position) const;
    // -1 when empty.
    int32 First() const { return Empty() ? -1 : ranges_.front().first; }
    int32 Last() const { return Empty() ? -1 : ranges_.back().last; }
    // The member nearest to the position, the later of two; -1 when empty.
    int32 NearestTo(int32 position) const;
    // Ascending.
    std::vector<int32> Positions() const;

    void Add(Range range);
    void Remove(Range range);
    // Takes the position in or out.
    void Toggle(int32 position);
    // What a list of so many frames has beside these.
    FrameSet Inverted(int32 frames) const;
    // Without what a list of so many frames does not have.
    FrameSet Within(int32 frames) const;

    bool operator==(const FrameSet&) const = default;

  private:
    std::vector<Range> ranges_;
};

// The set that the text describes in a list of so many frames: "all", "none", or parts with commas
// between them, each a number, a range "3-9" or a range with a step "0-20/2". The first frame is 0;
// numbers below 0 count from the end, -1 is the last frame; a range may be written backward. Blanks
// around parts do not count. Empty for any other text, and when a number is outside the list.
std::optional<FrameSet> ParseFrameSet(std::string_view text, int32 frames);

// The set in that form.
std::string TextOf(const FrameSet& frames);

}  // namespace kirto
