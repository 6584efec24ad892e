#include "kit/messenger.h"

#include "kit/looper.h"

BMessenger::BMessenger(const BHandler& handler) {
    const BLooper* looper = handler.Looper();
    if (!looper) return;
    port_ = looper->Port();
    // The looper has one name only, so that messengers to it compare equal.
    if (&handler != looper) handler_ = handler.Token();
}

status_t BMessenger::SendMessage(const BMessage& message) const {
    return port_ ? port_->PostCopy(message, handler_) : B_NO_INIT;
}
