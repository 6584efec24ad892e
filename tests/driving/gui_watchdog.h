#pragma once

#include <QObject>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace kirto {

// Asks the GUI thread for an answer again and again, from a thread of its own, and notes by the
// wall clock how long each one took: what a click would have waited. Made on the GUI thread, which
// has to handle events.
class GuiWatchdog : public QObject {
  public:
    using Duration = std::chrono::steady_clock::duration;

    GuiWatchdog();
    ~GuiWatchdog() override;

    // The longest wait since the last call, an answer that is still missing included.
    Duration TakeLongest();

  private:
    using Clock = std::chrono::steady_clock;

    void Watch();

    std::mutex mutex_;
    std::condition_variable changed_;
    Clock::time_point asked_;  // all guarded by the mutex
    bool answered_ = true;
    bool over_ = false;
    Duration longest_{0};
    std::thread thread_;
};

}  // namespace kirto
