#pragma once

#include <functional>

#include "kit/message_port.h"

namespace kirto::test {

// Looks at what holds at the moment of each post, on the thread that posts.
class PortWatcher : public MessagePort {
  public:
    using Look = std::function<void(uint32 code)>;

    explicit PortWatcher(Look look) : look_(std::move(look)) {}

    status_t Post(BMessage message, handler_token) override {
        look_(message.what);
        return B_OK;
    }
    bool IsOpen() const override { return true; }

  private:
    const Look look_;
};

}  // namespace kirto::test
