#include "app/command_port.h"

#include "app/kirto.h"

namespace kirto {

namespace {

constexpr const char* kCounted = "counted";

void Add(AnimationDocument& document, uint32 code, int32 number) {
    const Kirto::Change change = Kirto::ChangeBy(code);
    if (change == Kirto::Change::kInsertion) document.insertions_waiting += number;
    document.changes_waiting += number;
}

}  // namespace

CommandPort::CommandPort(AnimationDocument& document, std::shared_ptr<MessagePort> application)
    : document_(document), application_(std::move(application)) {}

status_t CommandPort::Post(BMessage message, handler_token handler) {
    Count(document_, &message);
    const status_t status = application_->Post(message, handler);
    if (status != B_OK && IsCounted(message)) Uncount(document_, message);
    return status;
}

void CommandPort::Count(AnimationDocument& document, BMessage* command) {
    command->RemoveName(kCounted);
    if (Kirto::ChangeBy(command->what) == Kirto::Change::kNone) return;
    command->AddBool(kCounted, true);
    Add(document, command->what, 1);
}

bool CommandPort::IsCounted(const BMessage& command) {
    bool counted = false;
    return command.FindBool(kCounted, &counted) == B_OK;
}

void CommandPort::Uncount(AnimationDocument& document, const BMessage& command) {
    Add(document, command.what, -1);
}

}  // namespace kirto
