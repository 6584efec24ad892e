#include "resources/ie_resource_handler.h"

#include <algorithm>

#include "kit/alert.h"
#include "kit/file.h"

IEResourceHandler::IEResourceHandler(const entry_ref& file, BApplication* app) : app_(app) {
    AddResourceFile(file);
}

void IEResourceHandler::AddResourceFile(const entry_ref& file) {
    BFile opened(file.path, B_READ_ONLY);
    auto resources = std::make_unique<BResources>(&opened);
    if (resources->InitCheck() == B_OK) {
        files_.push_back(std::move(resources));
        return;
    }
    BAlert("", "Resource file open error!\n", "Cancel", {}, {}, B_STOP_ALERT).Go();
    error_ = -1;
}

std::optional<std::span<const uint8>> IEResourceHandler::FindResource(std::string_view name,
                                                                      type_code type) const {
    for (const auto& file : files_) {
        if (file->HasResource(type, name)) return file->FindResource(type, name);
    }
    return std::nullopt;
}

void IEResourceHandler::AddToWindowList(const BWindow* window) {
    if (window->IsModal()) return;
    DropInvalidMessengers();
    const BMessenger messenger = window->Messenger();
    if (std::find(windows_.begin(), windows_.end(), messenger) != windows_.end()) return;
    windows_.push_back(messenger);
}

// Windows leave in pairs of calls: the one that finds the window only takes it off the list. It is
// the second, which finds nothing, that looks whether the program has anything left to show.
void IEResourceHandler::RemoveFromWindowList(const BWindow* window) {
    if (window->IsModal()) return;
    DropInvalidMessengers();
    if (std::erase(windows_, window->Messenger()) > 0) return;
    const bool nothing_left = windows_.empty() || BWindow::CountWindows() == 0;
    if (app_ && nothing_left) app_->PostMessage(B_QUIT_REQUESTED);
}

void IEResourceHandler::DropInvalidMessengers() {
    std::erase_if(windows_, [](const BMessenger& messenger) { return !messenger.IsValid(); });
}
