// Driving windows as a user does.
#pragma once

#include <QCoreApplication>
#include <QWidget>
#include <chrono>
#include <functional>
#include <gtest/gtest.h>

namespace kirto::test {

// The widget of that view name in the window; the test ends without it.
template <typename Widget>
Widget* Named(const QWidget& window, const char* name) {
    auto* widget = window.findChild<Widget*>(name);
    if (!widget) ADD_FAILURE() << "no " << name;
    return widget;
}

// Handles events until the condition holds; false when it doesn't within a generous time.
inline bool WaitFor(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

}  // namespace kirto::test
