#pragma once

#include <atomic>
#include <thread>

#include "base/types.h"
#include "base/work.h"

namespace kirto {

// How much is done of a piece of work that several threads share. They count; the work hears of it
// from the thread that works for it, which is the one that makes this.
class SharedProgress {
  public:
    // total: in whatever unit it is counted. The work outlives this.
    SharedProgress(Work& work, int64 total)
        : work_(work), teller_(std::this_thread::get_id()), total_(total) {}

    // For any thread.

    // So much more is done; told at once on the working thread.
    void Add(int64 done) {
        done_.fetch_add(done, std::memory_order_relaxed);
        if (std::this_thread::get_id() == teller_) Tell();
    }
    int64 Done() const { return done_.load(std::memory_order_relaxed); }
    bool StopRequested() const { return work_.StopRequested(); }

    // For the working thread: tells what all have done by now.
    void Tell() { work_.Report(Done(), total_); }

  private:
    Work& work_;
    const std::thread::id teller_;
    const int64 total_;
    std::atomic<int64> done_ = 0;
};

}  // namespace kirto
