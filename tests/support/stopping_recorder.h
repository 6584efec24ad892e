// A window that stops the document's work at one of its messages. It keeps no record of how far the
// work was when, which is up to the clock.
#pragma once

#include <string>

#include "document/command_codes.h"
#include "support/test_support.h"

namespace kirto::test {

class StoppingRecorder : public PortRecorder {
  public:
    // From now on the work is stopped when this status text is posted. The document outlives this.
    void StopAt(AnimationDocument& document, const std::string& text) {
        document_ = &document;
        text_ = text;
    }
    status_t Post(BMessage message, handler_token handler) override {
        if (message.what == kWorkProgress) return B_OK;
        std::string text;
        if (document_ && message.FindString("text", &text) == B_OK && text == text_) {
            document_->work.Stop(document_->work.Running());
        }
        return PortRecorder::Post(std::move(message), handler);
    }

  private:
    AnimationDocument* document_ = nullptr;
    std::string text_;
};

}  // namespace kirto::test
