#pragma once

#include <condition_variable>
#include <mutex>
#include <thread>

#include "platform/message.h"
#include "platform/messenger.h"

// Sends the same message again and again from a thread of its own, every interval microseconds, the
// first after one interval, count times (negative: until it is destroyed). An interval of 0 or less
// sends nothing; a target that refuses a message gets no more of them.
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
