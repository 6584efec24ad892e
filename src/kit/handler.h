#pragma once

#include <string>

#include "base/types.h"

class BLooper;
class BMessage;

namespace kirto {

// Names a handler for as long as the process runs; never reused.
using handler_token = uint64;

// Stands for the looper itself.
inline constexpr handler_token kPreferredHandler = 0;

}  // namespace kirto

// Something that messages are sent to. Lives in one looper at a time; MessageReceived runs on that
// looper's thread.
class BHandler {
  public:
    explicit BHandler(std::string name = {});
    // Leaves its looper, if it is still in one.
    virtual ~BHandler();
    BHandler(const BHandler&) = delete;
    BHandler& operator=(const BHandler&) = delete;

    // Handles one message. The base does nothing: unknown commands are ignored.
    virtual void MessageReceived(BMessage* message);

    const std::string& Name() const { return name_; }
    BLooper* Looper() const { return looper_; }
    kirto::handler_token Token() const { return token_; }

  private:
    friend class BLooper;

    std::string name_;
    kirto::handler_token token_;
    BLooper* looper_ = nullptr;
};
