#pragma once

#include <atomic>
#include <chrono>
#include <functional>

#include "base/types.h"

namespace kirto {

// A piece of work that may take long, one after the other: what it has done, and whether it is to
// end before it is done. The thread that works asks StopRequested() at least every few milliseconds
// and tells how far it is; any other thread may ask it to stop. It keeps what is complete then.
class Work {
  public:
    // Receives the number of the piece and how much of it is done, on the working thread: first
    // when it has taken kFirstReport, then about every kNextReport.
    using Reporter = std::function<void(uint64 piece, int64 done, int64 total)>;
    static constexpr std::chrono::milliseconds kFirstReport{300};
    static constexpr std::chrono::milliseconds kNextReport{50};

    explicit Work(Reporter reporter = {});
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

    // For the thread that works.

    // A new piece begins and ends.
    void Begin();
    void End();
    // done: 0 to total, in whatever unit the piece is counted.
    void Report(int64 done, int64 total);
    // Reports the same again: while somebody else does the work.
    void ReportAgain() { Report(done_, total_); }
    // Whether the reporter was told of this piece.
    bool Reported() const { return reported_; }
    // Lifts StopAll().
    void AllowAll() { stop_all_ = false; }

    // For any thread.

    bool StopRequested() const { return stop_all_ || stopped_ == running_; }
    // The number of the piece that is being worked on; 0 between two of them.
    uint64 Running() const { return running_; }
    // Stops that piece if it still runs; 0 stops nothing.
    void Stop(uint64 piece) {
        if (piece != 0) stopped_ = piece;
    }
    // Stops this piece and all later ones. Safe in a signal handler.
    void StopAll() { stop_all_ = true; }

  private:
    using Clock = std::chrono::steady_clock;
    static constexpr uint64 kNoPiece = ~uint64{0};

    const Reporter reporter_;
    std::atomic<bool> stop_all_ = false;
    std::atomic<uint64> running_ = 0;
    std::atomic<uint64> stopped_ = kNoPiece;
    uint64 pieces_ = 0;  // begun so far
    int64 done_ = 0;
    int64 total_ = 0;
    bool reported_ = false;
    Clock::time_point next_report_ = Clock::time_point::max();
};

// True when there is somebody who may stop the work and has done so.
inline bool IsStopped(const Work* work) {
    return work && work->StopRequested();
}

}  // namespace kirto
