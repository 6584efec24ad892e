#pragma once

#include <condition_variable>
#include <mutex>

#include "kit/handler.h"
#include "kit/looper.h"

namespace kirto {

// Waits until a looper has handled everything that was posted to it before. Lives in the looper.
class IdleBarrier : public BHandler {
  public:
    void MessageReceived(BMessage* message) override;
    // Called from another thread than the looper's.
    void Wait(const BLooper& looper);

  private:
    std::mutex mutex_;
    std::condition_variable passed_changed_;
    bool passed_ = false;
};

}  // namespace kirto
