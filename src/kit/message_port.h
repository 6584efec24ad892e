#pragma once

#include <memory>
#include <new>

#include "kit/handler.h"
#include "kit/message.h"

namespace kirto {

// Where messages are delivered: a looper's queue, the GUI toolkit's event queue, a test's recorder.
class MessagePort {
  public:
    virtual ~MessagePort() = default;
    // Takes the message for later handling, in order; never blocks on the handler. handler is the
    // token of the handler meant, or kPreferredHandler. B_NOT_ALLOWED once the port is closed.
    // Callable from any thread.
    virtual status_t Post(BMessage message, handler_token handler) = 0;
    // Posts a copy of the message; B_NO_MEMORY where there is no room for it.
    status_t PostCopy(const BMessage& message, handler_token handler);
    // False once the receiving end is gone.
    virtual bool IsOpen() const = 0;
};

inline status_t MessagePort::PostCopy(const BMessage& message, handler_token handler) {
    try {
        return Post(message, handler);
    } catch (const std::bad_alloc&) {
        return B_NO_MEMORY;
    }
}

}  // namespace kirto
