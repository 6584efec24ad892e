#include "kit/window.h"

#include <gtest/gtest.h>
#include <thread>

#include "support/test_support.h"

namespace kirto::test {

namespace {

// A port that can be closed.
class ClosablePort : public PortRecorder {
  public:
    bool IsOpen() const override { return open; }

    bool open = true;
};

TEST(Window, IsCountedWhileItExists) {
    const int32 before = BWindow::CountWindows();
    {
        const BWindow first("first", std::make_shared<PortRecorder>());
        const BWindow second("second", std::make_shared<PortRecorder>());
        EXPECT_EQ(BWindow::CountWindows(), before + 2);
    }
    EXPECT_EQ(BWindow::CountWindows(), before);
}

TEST(Window, CanBeCountedFromAnyThread) {
    const BWindow window("window", std::make_shared<PortRecorder>());
    int32 counted = 0;

    std::thread([&] { counted = BWindow::CountWindows(); }).join();

    EXPECT_EQ(counted, BWindow::CountWindows());
}

TEST(Window, KnowsItsNameAndWhetherItIsModal) {
    const BWindow plain("plain", std::make_shared<PortRecorder>());
    const BWindow modal("modal", std::make_shared<PortRecorder>(), true);

    EXPECT_EQ(plain.Name(), "plain");
    EXPECT_FALSE(plain.IsModal());
    EXPECT_TRUE(modal.IsModal());
}

TEST(Window, IsReachedByItsMessenger) {
    const auto port = std::make_shared<PortRecorder>();
    const BWindow window("window", port);

    EXPECT_TRUE(window.Messenger().IsValid());
    EXPECT_EQ(window.Messenger().SendMessage(FourCharCode("test")), B_OK);

    EXPECT_EQ(window.Port(), port);
    EXPECT_EQ(port->Transcript(), "test");
}

TEST(Window, LeavesMessengersThatOutliveItAndItsPort) {
    const auto port = std::make_shared<ClosablePort>();
    BMessenger messenger;
    {
        const BWindow window("window", port);
        messenger = window.Messenger();
        port->open = false;
    }

    EXPECT_FALSE(messenger.IsValid());
}

}  // namespace

}  // namespace kirto::test
