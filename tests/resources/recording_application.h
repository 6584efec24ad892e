// Applications and windows for the tests of the framework.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kit/message_port.h"
#include "kit/window.h"
#include "support/test_support.h"

namespace kirto::test {

// Ends the loop of a RecordingApplication.
inline constexpr uint32 kTestOver = FourCharCode("over");

// An application that takes down the codes of the messages it handles.
template <typename Base>
class RecordingApplication : public Base {
  public:
    using Base::Base;
    ~RecordingApplication() override { this->Quit(); }

    // Runs the loop until all that was posted so far is handled; the codes handled.
    std::vector<std::string> HandleAll() {
        this->PostMessage(kTestOver);
        this->Loop();
        return codes_;
    }

    void RefsReceived(BMessage*) override { codes_.emplace_back("refs"); }
    void AboutRequested() override { codes_.emplace_back("about"); }
    bool QuitRequested() override {
        codes_.emplace_back("quit");
        return false;
    }
    void MessageReceived(BMessage* message) override {
        if (message->what == kTestOver) {
            this->Quit();
        } else {
            codes_.push_back(CodeText(message->what));
        }
    }

  private:
    std::vector<std::string> codes_;
};

// Where a window gets its messages; closed like the window's own when it goes.
class WindowPort : public MessagePort {
  public:
    status_t Post(BMessage, handler_token) override { return open ? B_OK : B_NOT_ALLOWED; }
    bool IsOpen() const override { return open; }

    bool open = true;
};

// A window with a port.
class PortWindow {
  public:
    explicit PortWindow(bool modal = false) : window("window", port, modal) {}

    std::shared_ptr<WindowPort> port = std::make_shared<WindowPort>();
    BWindow window;
};

}  // namespace kirto::test
