#include "ui/controls/shown_document.h"

#include "document/new_animation.h"

namespace kirto {

ShownDocument::ShownDocument() {
    DocumentState state;
    state.animation = std::make_shared<const Animation>();
    state.settings = std::make_shared<const Prefs>(Prefs::BuiltIn{});
    state_ = std::make_shared<const DocumentState>(std::move(state));
}

void ShownDocument::Reset() {
    DocumentState state;
    state.animation = std::make_shared<const Animation>(NewAnimation(*state_->settings));
    state.settings = state_->settings;
    state_ = std::make_shared<const DocumentState>(std::move(state));
}

}  // namespace kirto
