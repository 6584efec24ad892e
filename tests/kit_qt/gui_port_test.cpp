#include "kit/qt/gui_port.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <vector>

#include "kit/messenger.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

constexpr uint32 kCommand = FourCharCode("comm");
constexpr uint32 kOther = FourCharCode("othr");
constexpr uint32 kRefresh = FourCharCode("refr");
constexpr uint32 kPaint = FourCharCode("pain");

// Handles events until the condition holds; false when it never does.
bool Until(const std::function<bool()>& condition) {
    QElapsedTimer deadline;
    deadline.start();
    while (!condition()) {
        if (deadline.elapsed() > 20'000) return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    }
    return true;
}

// A port whose receiver records what it gets: the code, and the field "n" where there is one.
class GuiPortDelivery : public ::testing::Test {
  protected:
    ~GuiPortDelivery() override { port->Close(); }

    BMessage Numbered(uint32 what, int32 number) const {
        BMessage message(what);
        message.AddInt32("n", number);
        return message;
    }
    void Receive(BMessage* message) {
        std::string line = CodeText(message->what);
        int32 number = 0;
        if (message->FindInt32("n", &number) == B_OK) line += std::to_string(number);
        received.push_back(line);
        // It may put another one in its place.
        if (const auto action = on_message) action(message);
    }
    bool UntilReceived(size_t count) {
        return Until([&] { return received.size() >= count; });
    }

    std::vector<std::string> received;
    std::function<void(BMessage*)> on_message;
    std::shared_ptr<GuiPort> port =
        GuiPort::Create([this](BMessage* message) { Receive(message); }, {kRefresh, kPaint});
};

using Lines = std::vector<std::string>;

TEST_F(GuiPortDelivery, WarnsOfAReceiverThatRunsOutOfMemoryAndGoesOn) {
    const AlertRecorder alerts;
    on_message = [this](BMessage*) {
        if (received.size() == 1) throw std::bad_alloc();
    };
    port->Post(BMessage(kCommand), kPreferredHandler);
    port->Post(BMessage(kOther), kPreferredHandler);

    EXPECT_TRUE(UntilReceived(2));

    EXPECT_EQ(alerts.Lines(), Lines{"WARNING [] Out of memory. | OK"});
}

TEST_F(GuiPortDelivery, DeliversNothingBeforeEventsAreHandled) {
    EXPECT_EQ(port->Post(BMessage(kCommand), kPreferredHandler), B_OK);

    EXPECT_TRUE(received.empty());
    EXPECT_TRUE(UntilReceived(1));
}

TEST_F(GuiPortDelivery, DeliversCommandsInOrderAndEachOfThem) {
    for (const int32 number : {1, 2, 3})
        port->Post(Numbered(kCommand, number), kPreferredHandler);
    port->Post(Numbered(kOther, 4), kPreferredHandler);
    port->Post(Numbered(kCommand, 5), kPreferredHandler);

    ASSERT_TRUE(UntilReceived(5));

    EXPECT_EQ(received, (Lines{"comm1", "comm2", "comm3", "othr4", "comm5"}));
}

TEST_F(GuiPortDelivery, DeliversTheLastOfSeveralRefreshesWithTheSameCode) {
    port->Post(Numbered(kRefresh, 1), kPreferredHandler);
    port->Post(Numbered(kPaint, 2), kPreferredHandler);
    port->Post(Numbered(kRefresh, 3), kPreferredHandler);

    ASSERT_TRUE(UntilReceived(2));
    port->Post(Numbered(kCommand, 4), kPreferredHandler);
    ASSERT_TRUE(UntilReceived(3));

    EXPECT_EQ(received, (Lines{"pain2", "refr3", "comm4"}));
}

TEST_F(GuiPortDelivery, DeliversCommandsBeforeTheRefreshesThatWait) {
    port->Post(Numbered(kRefresh, 1), kPreferredHandler);
    port->Post(Numbered(kCommand, 2), kPreferredHandler);
    port->Post(Numbered(kPaint, 3), kPreferredHandler);
    port->Post(Numbered(kCommand, 4), kPreferredHandler);

    ASSERT_TRUE(UntilReceived(4));

    EXPECT_EQ(received, (Lines{"comm2", "comm4", "refr1", "pain3"}));
}

TEST_F(GuiPortDelivery, DeliversARefreshThatTheReceiverPostsWhileOneIsHandled) {
    on_message = [this](BMessage* message) {
        if (message->what == kRefresh && received.size() == 1) {
            port->Post(Numbered(kRefresh, 2), kPreferredHandler);
        }
    };
    port->Post(Numbered(kRefresh, 1), kPreferredHandler);

    ASSERT_TRUE(UntilReceived(2));

    EXPECT_EQ(received, (Lines{"refr1", "refr2"}));
}

TEST_F(GuiPortDelivery, KeepsRefreshesBackUntilTheDisplayFrameIsOver) {
    port->Post(BMessage(kCommand), kPreferredHandler);
    QCoreApplication::sendPostedEvents();
    ASSERT_EQ(received, Lines{"comm"});

    // Each turn handles what was posted, but no timer: only the frame's timer may deliver.
    for (int32 number = 0; number < 100; ++number) {
        port->Post(Numbered(kRefresh, number), kPreferredHandler);
        if (number < 50) QCoreApplication::sendPostedEvents();
    }
    const size_t at_once = received.size() - 1;
    ASSERT_TRUE(Until([&] { return received.back() == "refr99"; }));

    // On a machine that is busy with other things whole display frames may pass in between.
    EXPECT_LT(at_once, 50u);
    EXPECT_LE(received.size(), at_once + 2);
}

TEST_F(GuiPortDelivery, DeliversRefreshesAtOnceTogetherWithACommand) {
    port->Post(BMessage(kCommand), kPreferredHandler);
    QCoreApplication::sendPostedEvents();

    port->Post(BMessage(kRefresh), kPreferredHandler);
    port->Post(BMessage(kOther), kPreferredHandler);
    QCoreApplication::sendPostedEvents();

    EXPECT_EQ(received, (Lines{"comm", "othr", "refr"}));
}

TEST_F(GuiPortDelivery, KeepsCommandsBackWhileOneIsHandledInAnEventLoopOfItsOwn) {
    QEventLoop question;
    on_message = [&](BMessage* message) {
        if (message->what != kCommand) return;
        on_message = [&](BMessage* inner) {
            if (inner->what == kPaint) question.quit();
        };
        port->Post(BMessage(kOther), kPreferredHandler);
        port->Post(BMessage(kPaint), kPreferredHandler);
        question.exec();
        received.push_back("answered");
    };
    port->Post(BMessage(kCommand), kPreferredHandler);

    ASSERT_TRUE(UntilReceived(4));

    EXPECT_EQ(received, (Lines{"comm", "pain", "answered", "othr"}));
}

TEST_F(GuiPortDelivery, DeliversRefreshesThatWaitedAlreadyInTheReceiversEventLoop) {
    QEventLoop question;
    on_message = [&](BMessage* message) {
        if (message->what == kRefresh) question.quit();
        if (message->what != kCommand) return;
        question.exec();
        received.push_back("answered");
    };
    port->Post(BMessage(kRefresh), kPreferredHandler);
    port->Post(BMessage(kCommand), kPreferredHandler);

    ASSERT_TRUE(UntilReceived(3));

    EXPECT_EQ(received, (Lines{"comm", "refr", "answered"}));
}

TEST_F(GuiPortDelivery, DeliversNothingOnceClosedAndSaysSo) {
    port->Post(BMessage(kCommand), kPreferredHandler);
    port->Post(BMessage(kRefresh), kPreferredHandler);
    EXPECT_TRUE(port->IsOpen());

    port->Close();
    QCoreApplication::processEvents();

    EXPECT_FALSE(port->IsOpen());
    EXPECT_EQ(port->Post(BMessage(kCommand), kPreferredHandler), B_NOT_ALLOWED);
    EXPECT_TRUE(received.empty());
}

TEST_F(GuiPortDelivery, ForgetsARefreshThatWaitsForTheDisplayFrameWhenClosed) {
    port->Post(BMessage(kCommand), kPreferredHandler);
    QCoreApplication::sendPostedEvents();
    port->Post(BMessage(kRefresh), kPreferredHandler);
    QCoreApplication::sendPostedEvents();
    const size_t before = received.size();

    port->Close();
    bool later = false;
    QTimer::singleShot(50, [&] { later = true; });
    ASSERT_TRUE(Until([&] { return later; }));

    EXPECT_EQ(received.size(), before);
}

TEST_F(GuiPortDelivery, CanBeClosedByItsReceiver) {
    on_message = [this](BMessage*) { port->Close(); };
    port->Post(Numbered(kCommand, 1), kPreferredHandler);
    port->Post(Numbered(kCommand, 2), kPreferredHandler);

    ASSERT_TRUE(UntilReceived(1));
    QCoreApplication::processEvents();

    EXPECT_EQ(received, Lines{"comm1"});
}

TEST_F(GuiPortDelivery, CanBeClosedInAnEventLoopOfItsReceivers) {
    on_message = [this](BMessage*) {
        on_message = nullptr;
        QEventLoop question;
        QTimer::singleShot(0, &question, [&] {
            port->Close();
            question.quit();
        });
        question.exec();
    };
    port->Post(Numbered(kCommand, 1), kPreferredHandler);
    port->Post(Numbered(kCommand, 2), kPreferredHandler);

    ASSERT_TRUE(UntilReceived(1));
    QCoreApplication::processEvents();

    EXPECT_EQ(received, Lines{"comm1"});
}

TEST(GuiPort, MayLoseItsLastReferenceWhileItDelivers) {
    std::weak_ptr<GuiPort> watch;
    std::shared_ptr<GuiPort> owned;
    int32 received = 0;
    owned = GuiPort::Create(
        [&](BMessage*) {
            ++received;
            if (received < 2) return;
            owned->Close();
            owned.reset();
        },
        {kRefresh});
    watch = owned;

    // Once by way of a posted event, and once more by way of the display frame's timer.
    owned->Post(BMessage(kRefresh), kPreferredHandler);
    ASSERT_TRUE(Until([&] { return received == 1; }));
    owned->Post(BMessage(kRefresh), kPreferredHandler);
    ASSERT_TRUE(Until([&] { return received == 2; }));

    EXPECT_TRUE(watch.expired());
}

TEST(GuiPort, GoesWithoutDeliveringWhenNobodyKnowsItAnyMore) {
    int32 received = 0;
    std::shared_ptr<GuiPort> port = GuiPort::Create([&](BMessage*) { ++received; });
    port->Post(BMessage(kCommand), kPreferredHandler);

    port->Close();
    port.reset();
    QCoreApplication::processEvents();

    EXPECT_EQ(received, 0);
}

TEST(GuiPort, DeliversWhatManyThreadsPostOnTheGuiThreadAndInEachThreadsOrder) {
    constexpr int32 kThreads = 4;
    constexpr int32 kMessages = 2000;
    const std::thread::id gui_thread = std::this_thread::get_id();
    std::vector<int32> last(kThreads, 0);
    int32 count = 0;
    int32 out_of_order = 0;
    int32 elsewhere = 0;
    const std::shared_ptr<GuiPort> port = GuiPort::Create(
        [&](BMessage* message) {
            int32 thread = 0;
            int32 number = 0;
            if (std::this_thread::get_id() != gui_thread) ++elsewhere;
            if (message->FindInt32("thread", &thread) != B_OK) return;
            message->FindInt32("number", &number);
            int32& last_of_thread = last[static_cast<size_t>(thread)];
            if (number != last_of_thread + 1) ++out_of_order;
            last_of_thread = number;
            ++count;
        },
        {kRefresh});
    std::vector<std::thread> threads;
    for (int32 thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&port, thread] {
            for (int32 number = 1; number <= kMessages; ++number) {
                BMessage message(kCommand);
                message.AddInt32("thread", thread);
                message.AddInt32("number", number);
                port->Post(std::move(message), kPreferredHandler);
                port->Post(BMessage(kRefresh), kPreferredHandler);
            }
        });
    }

    EXPECT_TRUE(Until([&] { return count == kThreads * kMessages; }));
    for (std::thread& thread : threads)
        thread.join();
    port->Close();

    EXPECT_EQ(out_of_order, 0);
    EXPECT_EQ(elsewhere, 0);
}

TEST(GuiPort, RefusesWhatThreadsPostAfterItIsClosed) {
    int32 received_after_close = 0;
    bool closed = false;
    const std::shared_ptr<GuiPort> port = GuiPort::Create([&](BMessage*) {
        if (closed) ++received_after_close;
    });
    const BMessenger messenger(port);
    std::atomic<bool> refused = false;
    std::thread poster([&] {
        while (messenger.SendMessage(kCommand) == B_OK) {
        }
        refused = true;
    });
    for (int turn = 0; turn < 20; ++turn)
        QCoreApplication::processEvents();

    port->Close();
    closed = true;
    EXPECT_TRUE(Until([&] { return refused.load(); }));
    poster.join();

    EXPECT_EQ(received_after_close, 0);
    EXPECT_FALSE(messenger.IsValid());
}

}  // namespace

}  // namespace kirto::test
