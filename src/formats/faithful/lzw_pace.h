#pragma once

#include <array>

#include "base/types.h"

namespace kirto {

// How much of an image was in how many bytes of its codes: what another encoding of the same
// pixels is measured by.
class LzwPace {
  public:
    // The pixels that were taken, and the bytes for them; more with every call, of as many pixels.
    void Add(size_t taken, size_t bytes, size_t pixels) {
        for (; marks_ < kMarks && taken * kMarks >= pixels * (marks_ + 1); ++marks_)
            bytes_[marks_] = bytes;
    }
    // The bytes for so many of all pixels, in a straight line between what is known.
    double BytesFor(size_t taken, size_t pixels) const {
        const double place = static_cast<double>(taken) * kMarks / static_cast<double>(pixels);
        const size_t mark = static_cast<size_t>(place);
        const double from = mark > 0 ? static_cast<double>(bytes_[mark - 1]) : 0;
        if (mark == kMarks) return from;
        const double to = static_cast<double>(bytes_[mark]);
        return from + (to - from) * (place - static_cast<double>(mark));
    }

  private:
    static constexpr size_t kMarks = 512;

    std::array<size_t, kMarks> bytes_{};  // for 1, 2, ... of so many parts of the pixels
    size_t marks_ = 0;                    // that have been passed
};

}  // namespace kirto
