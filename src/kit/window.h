#pragma once

#include <memory>
#include <string>

#include "kit/handler.h"
#include "kit/message_port.h"
#include "kit/messenger.h"

// A window as the rest of the program knows it: a handler of messages with an address and a place
// among the program's windows. Windows live on the GUI thread, which delivers what is posted to
// their port; what they look like is a subclass's business.
class BWindow : public BHandler {
  public:
    // port: where messages for this window are posted; closed by whoever made it when the window
    // goes.
    BWindow(std::string name, std::shared_ptr<kirto::MessagePort> port, bool modal = false);
    ~BWindow() override;

    bool IsModal() const { return modal_; }
    // Invalid once the window is gone.
    BMessenger Messenger() const { return BMessenger(port_); }

    const std::shared_ptr<kirto::MessagePort>& Port() const { return port_; }

    // The windows that exist. Callable from any thread.
    static int32 CountWindows();

  private:
    std::shared_ptr<kirto::MessagePort> port_;
    bool modal_;
};
