#pragma once

#include <atomic>

#include "kit/alert.h"

namespace kirto {

// Prints alerts on standard error, where nobody sits in front of the screen, and answers each with
// its last button. Presents from any thread while it lives.
class PrintedAlerts : public AlertPresenter {
  public:
    PrintedAlerts();
    ~PrintedAlerts() override;

    int32 Present(const BAlert& alert) override;
    // True once there was an alert.
    bool Presented() const { return presented_; }

  private:
    std::atomic<bool> presented_ = false;
    AlertPresenter* previous_;
};

}  // namespace kirto
