#pragma once

#include <atomic>
#include <string>

#include "kit/message_port.h"

namespace kirto {

// The command line's stand-in for the window's status line: shows the status texts posted to it as
// one line that is rewritten in place, on a standard error that is a terminal. Other commands are
// for windows and are passed over. Used by the threads that do the work.
class ProgressLine : public MessagePort {
  public:
    explicit ProgressLine(bool enabled);
    // Clears the line.
    ~ProgressLine() override;

    status_t Post(BMessage message, handler_token handler) override;
    bool IsOpen() const override { return true; }

    // Wipes the line, so that other text can be written.
    void Clear();

  private:
    const bool enabled_;
    std::atomic<bool> shown_ = false;
};

}  // namespace kirto
