#include "kit/idle_barrier.h"

namespace kirto {

void IdleBarrier::MessageReceived(BMessage*) {
    const std::lock_guard lock(mutex_);
    passed_ = true;
    passed_changed_.notify_one();
}

void IdleBarrier::Wait(const BLooper& looper) {
    std::unique_lock lock(mutex_);
    passed_ = false;
    if (looper.PostMessage(BMessage(), *this) != B_OK) return;
    passed_changed_.wait(lock, [this] { return passed_; });
}

}  // namespace kirto
