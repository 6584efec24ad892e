#include "kit/message_queue.h"

#include <utility>

namespace kirto {

status_t MessageQueue::Post(BMessage message, handler_token handler) {
    const std::lock_guard lock(mutex_);
    if (!open_) return B_NOT_ALLOWED;
    envelopes_.push_back({std::move(message), handler});
    changed_.notify_one();
    return B_OK;
}

bool MessageQueue::IsOpen() const {
    const std::lock_guard lock(mutex_);
    return open_;
}

bool MessageQueue::Take(Envelope* envelope) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return !open_ || !envelopes_.empty(); });
    if (!open_) return false;
    *envelope = std::move(envelopes_.front());
    envelopes_.pop_front();
    return true;
}

void MessageQueue::Close() {
    const std::lock_guard lock(mutex_);
    open_ = false;
    envelopes_.clear();
    changed_.notify_all();
}

}  // namespace kirto
