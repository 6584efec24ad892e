#include "kit/alert.h"

#include <atomic>
#include <new>
#include <utility>

#include "base/core_text.h"

namespace kirto {

namespace {

std::atomic<AlertPresenter*> g_presenter = nullptr;

}  // namespace

AlertPresenter* InstallAlertPresenter(AlertPresenter* presenter) {
    return g_presenter.exchange(presenter);
}

void AlertPresenter::Tell(const std::string& text) {
    Present(BAlert("", text, CoreText::Later("OK")));
}

void Warn(const std::string& text) {
    BAlert("", text, CoreText::Later("OK")).Go();
}

void TellQuietly(const std::string& text) {
    if (AlertPresenter* presenter = g_presenter) presenter->Tell(text);
}

void WarnOutOfMemory() noexcept {
    try {
        Warn(kOutOfMemory);
    } catch (const std::bad_alloc&) {
        return;
    }
}

}  // namespace kirto

BAlert::BAlert(std::string title, std::string text, std::string button0, std::string button1,
               std::string button2, alert_type type)
    : title_(std::move(title)), text_(std::move(text)), type_(type) {
    buttons_.push_back(std::move(button0));
    for (std::string* button : {&button1, &button2}) {
        if (!button->empty()) buttons_.push_back(std::move(*button));
    }
    default_button_ = static_cast<int32>(buttons_.size()) - 1;
}

int32 BAlert::Go() {
    if (kirto::AlertPresenter* presenter = kirto::g_presenter) return presenter->Present(*this);
    return static_cast<int32>(buttons_.size()) - 1;
}
