#pragma once

#include <memory>

#include "document/animation_document.h"
#include "kit/message_port.h"

namespace kirto {

// Where windows and file panels post the application's commands. A command that changes the
// document counts as a pending change from the moment it is posted until it has been carried out.
// Thread-safe.
class CommandPort : public MessagePort {
  public:
    // The document outlives whoever posts.
    CommandPort(AnimationDocument& document, std::shared_ptr<MessagePort> application);

    status_t Post(BMessage message, handler_token handler) override;
    bool IsOpen() const override { return application_->IsOpen(); }

    // If the command changes the document: counts it as a pending change and marks it.
    static void Count(AnimationDocument& document, BMessage* command);
    static bool IsCounted(const BMessage& command);
    // Stops counting a command that was carried out or dropped, and restores its code.
    static void Uncount(AnimationDocument& document, const BMessage& command);

  private:
    AnimationDocument& document_;
    const std::shared_ptr<MessagePort> application_;
};

}  // namespace kirto
