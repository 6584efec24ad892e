#include "app/recovery/crash_recovery.h"

#include <ctime>

#include "base/core_text.h"
#include "base/text.h"
#include "kit/alert.h"

namespace kirto {

namespace {

constexpr int32 kDiscardButton = 0;
constexpr int32 kRecoverButton = 2;

// "2026-11-21 23:05", by the user's clock.
std::string TimeText(int64 seconds) {
    const auto time = static_cast<time_t>(seconds);
    struct tm parts {};
    char text[64] = "";
    if (!localtime_r(&time, &parts)) return {};
    std::strftime(text, sizeof(text), "%Y-%m-%d %H:%M", &parts);
    return text;
}

int32 Ask(const RecoveryHead& head) {
    BAlert alert(
        "",
        CoreText::With(
            CoreText::tr(
                "The editor ended unexpectedly. \"%1\" (%2 frame(s), %3) can be recovered."),
            {head.file_name, std::to_string(head.frame_count), TimeText(head.written)}),
        CoreText::Later("Discard"), CoreText::Later("Later"), CoreText::Later("Recover"));
    return alert.Go();
}

}  // namespace

CrashRecovery::CrashRecovery(std::string folder, RecoverySchedule::Delay delay)
    : store_(std::move(folder)), writer_(std::in_place, store_, delay) {}

void CrashRecovery::Watch(AnimationDocument& document) {
    document.SetObserver(
        [this](const std::shared_ptr<const DocumentState>& state) { writer_->Update(state); });
}

std::optional<std::string> CrashRecovery::Offer() {
    for (const RecoveryStore::Left& left : store_.List(std::time(nullptr))) {
        const int32 answer = Ask(left.head);
        if (answer == kRecoverButton) return left.path;
        if (answer == kDiscardButton) store_.Discard(left.path);
    }
    return std::nullopt;
}

void CrashRecovery::Finish(const std::string& path) {
    if (WriteNow() == B_OK) store_.Discard(path);
}

void CrashRecovery::Remove() {
    writer_.reset();
    store_.Remove();
}

}  // namespace kirto
