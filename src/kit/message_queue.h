#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>

#include "kit/message_port.h"

namespace kirto {

// A message on its way, and the token of the handler it is meant for.
struct Envelope {
    BMessage message;
    handler_token handler = kPreferredHandler;
};

// The queue behind a looper: any thread posts, the looper's thread takes. Shared by the looper and
// the messengers that point at it, so that a messenger may outlive its looper. Starts open.
class MessageQueue : public MessagePort {
  public:
    status_t Post(BMessage message, handler_token handler) override;
    bool IsOpen() const override;

    // Takes the oldest envelope, waiting for one; false once the queue is closed.
    bool Take(Envelope* envelope);
    // Refuses posts from now on, drops what is queued and wakes the taker. May be called again.
    void Close();

  private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Envelope> envelopes_;
    bool open_ = true;
};

}  // namespace kirto
