#include "driving/gui_watchdog.h"

#include <algorithm>
#include <utility>

namespace kirto {

namespace {

constexpr std::chrono::milliseconds kBetweenQuestions{2};

}  // namespace

GuiWatchdog::GuiWatchdog() : thread_([this] { Watch(); }) {}

GuiWatchdog::~GuiWatchdog() {
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
    }
    changed_.notify_one();
    thread_.join();
}

GuiWatchdog::Duration GuiWatchdog::TakeLongest() {
    const std::lock_guard lock(mutex_);
    if (!answered_) longest_ = std::max(longest_, Clock::now() - asked_);
    return std::exchange(longest_, Duration(0));
}

void GuiWatchdog::Watch() {
    std::unique_lock lock(mutex_);
    while (!over_) {
        asked_ = Clock::now();
        answered_ = false;
        QMetaObject::invokeMethod(
            this,
            [this] {
                const std::lock_guard answer(mutex_);
                longest_ = std::max(longest_, Clock::now() - asked_);
                answered_ = true;
                changed_.notify_one();
            },
            Qt::QueuedConnection);
        changed_.wait(lock, [this] { return answered_ || over_; });
        changed_.wait_for(lock, kBetweenQuestions, [this] { return over_; });
    }
}

}  // namespace kirto
