#include "platform/message_runner.h"

#include <condition_variable>
#include <gtest/gtest.h>
#include <limits>
#include <mutex>

#include "platform/looper.h"
#include "platform/semaphore.h"

namespace kirto::test {

namespace {

// Counts what is posted, and refuses everything past a number of messages.
class CountingPort : public MessagePort {
  public:
    explicit CountingPort(int capacity = std::numeric_limits<int>::max()) : capacity_(capacity) {}

    status_t Post(BMessage message, handler_token) override {
        const std::lock_guard lock(mutex_);
        last_ = std::move(message);
        ++attempts_;
        changed_.notify_all();
        return attempts_ <= capacity_ ? B_OK : B_NOT_ALLOWED;
    }
    bool IsOpen() const override { return true; }

    void WaitFor(int attempts) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return attempts_ >= attempts; });
    }
    int Attempts() const {
        const std::lock_guard lock(mutex_);
        return attempts_;
    }
    BMessage Last() const {
        const std::lock_guard lock(mutex_);
        return last_;
    }

  private:
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    const int capacity_;
    int attempts_ = 0;
    BMessage last_;
};

constexpr bigtime_t kShort = 500;
// Long enough for many more messages than are expected.
constexpr bigtime_t kManyIntervals = 20 * kShort;

}  // namespace

TEST(BMessageRunner, SendsTheSameMessageAgainAndAgain) {
    const auto port = std::make_shared<CountingPort>();
    BMessage message(FourCharCode("tick"));
    message.AddInt32("number", 3);
    const BMessageRunner runner(BMessenger(port), message, kShort);
    port->WaitFor(5);
    EXPECT_EQ(port->Last(), message);
}

TEST(BMessageRunner, SendsAsOftenAsItIsTold) {
    const auto port = std::make_shared<CountingPort>();
    const BMessageRunner runner(BMessenger(port), BMessage(1), kShort, 3);
    port->WaitFor(3);
    snooze(kManyIntervals);
    EXPECT_EQ(port->Attempts(), 3);
}

TEST(BMessageRunner, StopsWhenDestroyed) {
    const auto port = std::make_shared<CountingPort>();
    {
        const BMessageRunner runner(BMessenger(port), BMessage(1), kShort);
        port->WaitFor(1);
    }
    const int attempts = port->Attempts();
    snooze(kManyIntervals);
    EXPECT_EQ(port->Attempts(), attempts);
}

TEST(BMessageRunner, SendsTheFirstMessageAfterOneInterval) {
    const auto port = std::make_shared<CountingPort>();
    { const BMessageRunner runner(BMessenger(port), BMessage(1), bigtime_t{3600} * 1'000'000); }
    EXPECT_EQ(port->Attempts(), 0);
}

TEST(BMessageRunner, TakesTheLongestInterval) {
    const auto port = std::make_shared<CountingPort>();
    {
        const BMessageRunner runner(BMessenger(port), BMessage(1),
                                    std::numeric_limits<bigtime_t>::max());
        snooze(kManyIntervals);
    }
    EXPECT_EQ(port->Attempts(), 0);
}

TEST(BMessageRunner, SendsNothingWithoutIntervalOrCount) {
    const auto port = std::make_shared<CountingPort>();
    const BMessageRunner none(BMessenger(port), BMessage(1), kShort, 0);
    const BMessageRunner at_once(BMessenger(port), BMessage(1), 0);
    const BMessageRunner backwards(BMessenger(port), BMessage(1), -5);
    snooze(kManyIntervals);
    EXPECT_EQ(port->Attempts(), 0);
}

TEST(BMessageRunner, StopsAtATargetThatRefuses) {
    const auto port = std::make_shared<CountingPort>(2);
    const BMessageRunner runner(BMessenger(port), BMessage(1), kShort);
    port->WaitFor(3);
    snooze(kManyIntervals);
    EXPECT_EQ(port->Attempts(), 3);
}

TEST(BMessageRunner, MayOutliveItsTarget) {
    auto looper = std::make_unique<BLooper>();
    looper->Run();
    const BMessenger messenger(*looper);
    const BMessageRunner runner(messenger, BMessage(1), kShort);
    looper.reset();
    snooze(kManyIntervals);
    EXPECT_FALSE(messenger.IsValid());
}

}  // namespace kirto::test
