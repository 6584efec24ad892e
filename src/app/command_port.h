#pragma once

#include <memory>

#include "document/animation_document.h"
#include "platform/message_port.h"

namespace kirto {

// Where windows and file panels post the application's commands. Those that change the document
// count as changes from the moment they are posted until they are carried out, however long other
// work keeps them waiting. Callable from any thread.
class CommandPort : public MessagePort {
  public:
    // The document outlives whoever posts.
    CommandPort(AnimationDocument& document, std::shared_ptr<MessagePort> application);

    status_t Post(BMessage message, handler_token handler) override;
    bool IsOpen() const override { return application_->IsOpen(); }

    // Counts the command among the document's waiting changes, if it is a change, and marks it.
    static void Count(AnimationDocument& document, BMessage* command);
    static bool IsCounted(const BMessage& command);
    // The command is carried out, or never will be: it counts no longer. Its code is what it was.
    static void Uncount(AnimationDocument& document, const BMessage& command);

  private:
    AnimationDocument& document_;
    const std::shared_ptr<MessagePort> application_;
};

}  // namespace kirto
