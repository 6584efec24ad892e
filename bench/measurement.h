#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/types.h"

namespace kirto::bench {

// What a job of this process costs, and what came of it. Nothing but what stands between Start and
// Stop counts.
class Measurement {
  public:
    // repeats: how often the work is done; figures are of one time. wants_digest: the job is to
    // look at what comes of it.
    Measurement(int32 repeats, bool wants_digest)
        : repeats_(repeats), wants_digest_(wants_digest) {}

    // Does the work repeats times. False as soon as it fails.
    bool Run(const std::function<bool()>& work);

    bool WantsDigest() const { return wants_digest_; }
    void SetDigest(uint64 digest) { digest_ = digest; }
    // How far what came of it is from what it stands for.
    void SetError(double error) { error_ = error; }
    // How many frames came of it.
    void SetFrames(int64 frames) { frames_ = frames; }

    // Prints the figures as a line of JSON: seconds of the processor, of all threads together, and
    // of the clock; bytes of memory that the work took at its peak, the largest if repeated.
    void Print() const;

  private:
    const int32 repeats_;
    const bool wants_digest_;
    double processor_ = 0;
    double wall_ = 0;
    int64 peak_ = 0;
    int64 frames_ = 0;
    std::optional<uint64> digest_;
    std::optional<double> error_;
};

}  // namespace kirto::bench
