#include "resources/ie_application.h"

#include "resources/command_codes.h"

IEApplication::IEApplication(std::string signature, const entry_ref& resource_file)
    : BApplication(std::move(signature)) {
    if (resource_file.path.empty()) return;
    resources_ = std::make_unique<IEResourceHandler>(resource_file, this);
    if (resources_->Error() == 0) return;
    error_ = -1;
    PostMessage(kirto::kResourcesMissing);
}

// Ends the loop while its messages still find this class.
IEApplication::~IEApplication() {
    Quit();
}

void IEApplication::DispatchMessage(BMessage* message, BHandler* handler) {
    if (message->what == kirto::kResourcesMissing) {
        Quit();
    } else {
        BApplication::DispatchMessage(message, handler);
    }
}
