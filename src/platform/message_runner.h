#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "platform/message.h"
#include "platform/messenger.h"

// Sends the same message again and again, every interval microseconds, count times (negative: until
// it is destroyed).
class BMessageRunner {
  public:
    BMessageRunner(BMessenger target, const BMessage& message, bigtime_t interval,
                   int32 count = -1);
    // Stops sending and waits for a send in progress.
    ~BMessageRunner();
    BMessageRunner(const BMessageRunner&) = delete;
    BMessageRunner& operator=(const BMessageRunner&) = delete;

  private:
    void Send(bigtime_t interval, int32 count);

    BMessenger target_;
    BMessage message_;
    std::mutex mutex_;
    std::condition_variable stop_requested_;
    bool stop_ = false;
    std::thread thread_;
};
