#pragma once

#include <memory>

#include "kit/message_port.h"

// An address to send messages to, from any thread. Copies freely; stays safe to use after its
// target is gone (sending then fails). A default messenger has no target and swallows nothing:
// sending fails with B_NO_INIT.
class BMessenger {
  public:
    BMessenger() = default;
    // The handler inside its looper, or the looper itself. A handler without looper gives a
    // messenger without target.
    explicit BMessenger(const BHandler& handler);
    // A port of any other kind.
    explicit BMessenger(std::shared_ptr<kirto::MessagePort> port,
                        kirto::handler_token handler = kirto::kPreferredHandler)
        : port_(std::move(port)), handler_(handler) {}

    bool IsValid() const { return port_ && port_->IsOpen(); }
    // B_NO_INIT without a target, B_NOT_ALLOWED when the target is gone, B_NO_MEMORY when there is
    // no room for the message.
    status_t SendMessage(const BMessage& message) const;
    status_t SendMessage(uint32 what) const { return SendMessage(BMessage(what)); }

    friend bool operator==(const BMessenger&, const BMessenger&) = default;

  private:
    std::shared_ptr<kirto::MessagePort> port_;
    kirto::handler_token handler_ = kirto::kPreferredHandler;
};
