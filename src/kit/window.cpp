#include "kit/window.h"

#include <atomic>

namespace {

std::atomic<int32> g_window_count = 0;

}  // namespace

BWindow::BWindow(std::string name, std::shared_ptr<kirto::MessagePort> port, bool modal)
    : BHandler(std::move(name)), port_(std::move(port)), modal_(modal) {
    ++g_window_count;
}

BWindow::~BWindow() {
    --g_window_count;
}

int32 BWindow::CountWindows() {
    return g_window_count;
}
