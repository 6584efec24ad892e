#include "platform/message_runner.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace {

// A century. Longer waits would leave the clock's range.
constexpr bigtime_t kMaxInterval = bigtime_t{100} * 365 * 24 * 3600 * 1'000'000;

}  // namespace

BMessageRunner::BMessageRunner(BMessenger target, const BMessage& message, bigtime_t interval,
                               int32 count)
    : target_(std::move(target)), message_(message) {
    if (interval <= 0 || count == 0) return;
    thread_ = std::thread([this, interval, count] { Send(interval, count); });
}

BMessageRunner::~BMessageRunner() {
    {
        const std::lock_guard lock(mutex_);
        stop_ = true;
    }
    stop_requested_.notify_all();
    if (thread_.joinable()) thread_.join();
}

void BMessageRunner::Send(bigtime_t interval, int32 count) {
    using Clock = std::chrono::steady_clock;
    const auto step = std::chrono::microseconds(std::min(interval, kMaxInterval));
    Clock::time_point due = Clock::now() + step;
    while (count != 0) {
        {
            std::unique_lock lock(mutex_);
            if (stop_requested_.wait_until(lock, due, [this] { return stop_; })) return;
        }
        if (target_.SendMessage(message_) != B_OK) return;
        if (count > 0) --count;
        // A machine that slept does not catch up on the messages of that time.
        due = std::max(due, Clock::now() - step) + step;
    }
}
