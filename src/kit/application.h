#pragma once

#include <string>

#include "kit/looper.h"

// The program's own looper: commands of the program arrive here, and the desktop's notices are
// turned into the hooks below. One per process.
class BApplication : public BLooper {
  public:
    // signature: the program's MIME signature.
    explicit BApplication(std::string signature) : BLooper(std::move(signature)) {}

    const std::string& Signature() const { return Name(); }

    // Files to open, in the message's field "refs".
    virtual void RefsReceived(BMessage* message) = 0;
    // The about box was asked for.
    virtual void AboutRequested() = 0;

  protected:
    void DispatchMessage(BMessage* message, BHandler* handler) override;
};
