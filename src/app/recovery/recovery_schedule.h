#pragma once

#include <chrono>
#include <optional>

namespace kirto {

// Says when a changed document is due to be written: a delay after its last change, so that a row
// of edits costs one write, but at most kPatience delays after the first change that is not written
// yet, so that a user who never pauses is not without a copy. A plain value.
class RecoverySchedule {
  public:
    using Time = std::chrono::steady_clock::time_point;
    using Delay = std::chrono::steady_clock::duration;
    static constexpr int kPatience = 6;

    explicit RecoverySchedule(Delay delay) : delay_(delay) {}

    void Changed(Time now);
    // Everything is written, or needs no writing.
    void Clear() { first_change_.reset(); }
    // Nothing when nothing has changed.
    std::optional<Time> Due() const;

  private:
    Delay delay_;
    std::optional<Time> first_change_;
    Time last_change_;
};

}  // namespace kirto
