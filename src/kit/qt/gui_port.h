#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "kit/message_port.h"

namespace kirto {

// Delivers messages on the GUI thread, in order. Posting is safe from any thread and never waits.
//
// Refresh commands say only that something is to be shown again, so of several that wait with the
// same code the last alone is delivered, in its place among the refreshes; and while nothing else
// waits, they are delivered at most once a display frame. A thousand refreshes cost one.
//
// Every other command comes before the refreshes that wait: what the user has just put into a
// control is read before something older is shown there. While a command is being handled the next
// one waits, also when the receiver runs an event loop of its own, for a question to the user;
// refreshes go on.
class GuiPort : public MessagePort, public std::enable_shared_from_this<GuiPort> {
  public:
    using Receiver = std::function<void(BMessage*)>;

    // Made and closed on the GUI thread. refresh_codes: the commands that coalesce.
    static std::shared_ptr<GuiPort> Create(Receiver receiver,
                                           std::vector<uint32> refresh_codes = {});
    ~GuiPort() override;

    // Delivers nothing any more. Called by the receiver's owner before the receiver goes.
    void Close();

    status_t Post(BMessage message, handler_token handler) override;
    bool IsOpen() const override;

  private:
    class Waker;

    GuiPort(Receiver receiver, std::vector<uint32> refresh_codes);
    bool IsRefresh(uint32 code) const;
    // The caller holds mutex_ and the port is open.
    void CallGuiThread();
    // GUI thread: delivers what waits, now or when the display frame is over.
    void Wake();
    void DeliverAll();
    // Counts down the refreshes that may still be taken; false when nothing more may be.
    bool TakeNext(BMessage* message, size_t* refreshes_left);

    const std::vector<uint32> refresh_codes_;
    mutable std::mutex mutex_;
    std::deque<BMessage> commands_;  // guarded by mutex_, like the next three
    std::deque<BMessage> refreshes_;
    bool open_ = true;
    bool wake_posted_ = false;
    Receiver receiver_;  // the GUI thread's, like what follows
    bool delivering_ = false;
    std::unique_ptr<Waker> waker_;
    QTimer frame_timer_;
    QElapsedTimer since_delivery_;
};

}  // namespace kirto
