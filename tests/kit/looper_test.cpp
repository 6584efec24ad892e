#include "kit/looper.h"

#include <functional>
#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <mutex>
#include <new>
#include <utility>

#include "kit/message_queue.h"
#include "support/test_support.h"

namespace kirto::test {

using ::testing::ElementsAre;

namespace {

// What was handled by whom, in order: "name:number".
class Log {
  public:
    void Add(const std::string& line) {
        const std::lock_guard lock(mutex_);
        lines_.push_back(line);
    }
    std::vector<std::string> Lines() const {
        const std::lock_guard lock(mutex_);
        return lines_;
    }

  private:
    mutable std::mutex mutex_;
    std::vector<std::string> lines_;
};

class LoggingHandler : public BHandler {
  public:
    LoggingHandler(std::string name, Log& log) : BHandler(std::move(name)), log_(log) {}
    void MessageReceived(BMessage* message) override {
        log_.Add(Name() + ":" + std::to_string(message->what));
    }

  private:
    Log& log_;
};

class LoggingLooper : public BLooper {
  public:
    explicit LoggingLooper(Log& log) : BLooper("looper"), log_(log) {}
    ~LoggingLooper() override { Quit(); }

    void MessageReceived(BMessage* message) override {
        log_.Add(Name() + ":" + std::to_string(message->what));
    }
    bool QuitRequested() override {
        log_.Add("asked");
        return std::exchange(agree_to_quit, true);
    }

    bool agree_to_quit = true;  // the first answer; the later ones agree

  private:
    Log& log_;
};

// Runs what it is given on the looper's thread, once for each message.
class CallingLooper : public BLooper {
  public:
    explicit CallingLooper(std::function<void(BLooper&, uint32)> call) : call_(std::move(call)) {}
    ~CallingLooper() override { Quit(); }
    void MessageReceived(BMessage* message) override { call_(*this, message->what); }

  private:
    std::function<void(BLooper&, uint32)> call_;
};

}  // namespace

TEST(BHandler, TokensAreNeverReused) {
    kirto::handler_token first = 0;
    {
        const BHandler handler("first");
        EXPECT_EQ(handler.Name(), "first");
        EXPECT_EQ(handler.Looper(), nullptr);
        first = handler.Token();
    }
    EXPECT_NE(first, kPreferredHandler);
    EXPECT_GT(BHandler().Token(), first);
}

TEST(BHandler, IgnoresMessagesByDefault) {
    BHandler handler;
    BMessage message(1);
    const BMessage before = message;
    handler.MessageReceived(&message);
    EXPECT_EQ(message, before);
}

TEST(BHandler, LeavesItsLooperWhenDestroyed) {
    Log log;
    LoggingLooper looper(log);
    {
        LoggingHandler handler("handler", log);
        looper.AddHandler(&handler);
        looper.PostMessage(BMessage(1), handler);
    }
    looper.PostMessage(B_QUIT_REQUESTED);
    looper.Loop();
    EXPECT_THAT(log.Lines(), ElementsAre("asked"));
}

TEST(BHandler, StaysWhenItsLooperIsDestroyed) {
    BHandler handler;
    {
        BLooper looper;
        looper.AddHandler(&handler);
        EXPECT_EQ(handler.Looper(), &looper);
    }
    EXPECT_EQ(handler.Looper(), nullptr);
}

TEST(BLooper, IsInItself) {
    BLooper looper("name");
    EXPECT_EQ(looper.Name(), "name");
    EXPECT_EQ(looper.Looper(), &looper);
}

TEST(BLooper, MayBeDestroyedWithoutRunning) {
    auto looper = std::make_unique<BLooper>();
    const BMessenger messenger(*looper);
    EXPECT_EQ(looper->PostMessage(1), B_OK);
    looper.reset();
    EXPECT_FALSE(messenger.IsValid());
}

TEST(BLooper, HandlesMessagesInTheOrderPosted) {
    Log log;
    LoggingLooper looper(log);
    LoggingHandler handler("handler", log);
    looper.AddHandler(&handler);
    EXPECT_EQ(looper.PostMessage(1), B_OK);
    EXPECT_EQ(looper.PostMessage(BMessage(2), handler), B_OK);
    EXPECT_EQ(looper.PostMessage(BMessage(3), looper), B_OK);
    EXPECT_EQ(looper.PostMessage(B_QUIT_REQUESTED), B_OK);
    looper.Loop();
    EXPECT_THAT(log.Lines(), ElementsAre("looper:1", "handler:2", "looper:3", "asked"));
}

TEST(BLooper, WarnsOfAHandlerThatRunsOutOfMemoryAndGoesOn) {
    const AlertRecorder alerts;
    std::vector<uint32> handled;
    CallingLooper looper([&](BLooper&, uint32 what) {
        if (what == 1) throw std::bad_alloc();
        handled.push_back(what);
    });
    looper.PostMessage(1);
    looper.PostMessage(2);
    looper.PostMessage(B_QUIT_REQUESTED);

    looper.Loop();

    EXPECT_THAT(alerts.Lines(), ElementsAre("WARNING [] Out of memory. | OK"));
    EXPECT_THAT(handled, ElementsAre(2U));
}

TEST(BMessenger, TellsWhenThereIsNoRoomForAMessage) {
    class FullPort : public kirto::MessagePort {
      public:
        status_t Post(BMessage, kirto::handler_token) override { throw std::bad_alloc(); }
        bool IsOpen() const override { return true; }
    };

    EXPECT_EQ(BMessenger(std::make_shared<FullPort>()).SendMessage(1), B_NO_MEMORY);
}

TEST(BLooper, RunsOnAThreadOfItsOwn) {
    std::promise<bool> on_looper_thread;
    CallingLooper looper(
        [&](BLooper& self, uint32) { on_looper_thread.set_value(self.IsOnLooperThread()); });
    looper.Run();
    looper.PostMessage(1);
    EXPECT_TRUE(on_looper_thread.get_future().get());
    EXPECT_FALSE(looper.IsOnLooperThread());
}

TEST(BLooper, LoopsOnTheCallingThread) {
    std::thread::id thread;
    CallingLooper looper([&](BLooper& self, uint32) {
        thread = std::this_thread::get_id();
        EXPECT_TRUE(self.IsOnLooperThread());
        self.Quit();
    });
    looper.PostMessage(1);
    looper.Loop();
    EXPECT_EQ(thread, std::this_thread::get_id());
    EXPECT_FALSE(looper.IsOnLooperThread());
}

TEST(BLooper, HandlesWhatManyThreadsPost) {
    std::atomic<int> handled = 0;
    std::promise<void> all;
    CallingLooper looper([&](BLooper&, uint32) {
        if (++handled == 2000) all.set_value();
    });
    looper.Run();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int message = 0; message < 500; ++message)
                looper.PostMessage(1);
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    all.get_future().wait();
    EXPECT_EQ(handled, 2000);
}

TEST(BLooper, DropsMessagesToHandlersThatLeft) {
    Log log;
    LoggingLooper looper(log);
    LoggingHandler handler("handler", log);
    looper.AddHandler(&handler);
    looper.PostMessage(BMessage(1), handler);
    looper.RemoveHandler(&handler);
    EXPECT_EQ(handler.Looper(), nullptr);
    looper.PostMessage(2);
    looper.PostMessage(B_QUIT_REQUESTED);
    looper.Loop();
    EXPECT_THAT(log.Lines(), ElementsAre("looper:2", "asked"));
}

TEST(BLooper, AHandlerIsInOneLooperAtATime) {
    BHandler handler;
    BLooper first;
    BLooper second;
    first.AddHandler(&handler);
    second.AddHandler(&handler);
    second.RemoveHandler(&handler);
    EXPECT_EQ(handler.Looper(), &first);
    first.AddHandler(&second);
    EXPECT_EQ(second.Looper(), &second);
}

TEST(BLooper, EndsWhenQuitIsAgreedTo) {
    Log log;
    LoggingLooper looper(log);
    looper.PostMessage(B_QUIT_REQUESTED);
    looper.PostMessage(1);
    looper.Loop();
    EXPECT_THAT(log.Lines(), ElementsAre("asked"));
    EXPECT_EQ(looper.PostMessage(1), B_NOT_ALLOWED);
}

TEST(BLooper, GoesOnWhenQuitIsRefused) {
    Log log;
    LoggingLooper looper(log);
    looper.agree_to_quit = false;
    looper.PostMessage(B_QUIT_REQUESTED);
    looper.PostMessage(1);
    looper.PostMessage(B_QUIT_REQUESTED);
    looper.Loop();
    EXPECT_THAT(log.Lines(), ElementsAre("asked", "looper:1", "asked"));
}

TEST(BLooper, IsNotAskedToQuitByMessagesToItsHandlers) {
    Log log;
    LoggingLooper looper(log);
    LoggingHandler handler("handler", log);
    looper.AddHandler(&handler);
    looper.PostMessage(BMessage(B_QUIT_REQUESTED), handler);
    looper.PostMessage(BMessage(B_QUIT_REQUESTED), looper);
    looper.Loop();
    EXPECT_THAT(log.Lines(), ElementsAre("handler:" + std::to_string(B_QUIT_REQUESTED), "asked"));
}

TEST(BLooper, AgreesToQuitByDefault) {
    BLooper looper;
    looper.PostMessage(B_QUIT_REQUESTED);
    looper.Loop();
    EXPECT_EQ(looper.PostMessage(1), B_NOT_ALLOWED);
}

TEST(BLooper, QuitFromItsOwnThreadEndsAfterTheMessageInHand) {
    std::vector<uint32> handled;
    CallingLooper looper([&](BLooper& self, uint32 what) {
        self.Quit();
        handled.push_back(what);
    });
    looper.PostMessage(1);
    looper.PostMessage(2);
    looper.Loop();
    EXPECT_THAT(handled, ElementsAre(1u));
}

TEST(BLooper, QuitFromAnotherThreadWaitsForTheMessageInHand) {
    std::promise<void> entered;
    std::promise<void> leave;
    bool left = false;  // not locked: Quit() must make it visible
    CallingLooper looper([&](BLooper&, uint32) {
        entered.set_value();
        leave.get_future().wait();
        left = true;
    });
    looper.Run();
    looper.PostMessage(1);
    entered.get_future().wait();
    std::thread helper([&] {
        while (looper.Port()->IsOpen())
            std::this_thread::yield();
        leave.set_value();
    });
    looper.Quit();
    EXPECT_TRUE(left);
    helper.join();
}

TEST(BLooper, QuitWorksFromSeveralThreadsAtOnce) {
    BLooper looper;
    looper.Run();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] { looper.Quit(); });
    for (std::thread& thread : threads)
        thread.join();
    looper.Quit();
    EXPECT_FALSE(looper.Port()->IsOpen());
}

TEST(BLooper, RunsOnceOnly) {
    BLooper looper;
    looper.PostMessage(B_QUIT_REQUESTED);
    looper.Loop();
    looper.Run();
    looper.Loop();
    EXPECT_FALSE(looper.IsOnLooperThread());
}

TEST(BLooper, DoesNotRunAfterQuit) {
    bool handled = false;
    CallingLooper looper([&](BLooper&, uint32) { handled = true; });
    looper.PostMessage(1);
    looper.Quit();
    looper.Loop();
    EXPECT_FALSE(handled);
}

TEST(BLooper, SubclassesStepInFrontOfAllHandling) {
    struct Filter : public BLooper {
        void DispatchMessage(BMessage* message, BHandler* handler) override {
            seen.push_back(message->what);
            EXPECT_EQ(handler, this);
            BLooper::DispatchMessage(message, handler);
        }
        std::vector<uint32> seen;
    };
    Filter looper;
    looper.PostMessage(1);
    looper.PostMessage(B_QUIT_REQUESTED);
    looper.Loop();
    EXPECT_THAT(looper.seen, ElementsAre(1u, B_QUIT_REQUESTED));
}

TEST(BLooper, HandlersMayLeaveWhileTheyHandle) {
    struct Leaver : public BHandler {
        void MessageReceived(BMessage*) override {
            ++handled;
            Looper()->RemoveHandler(this);
        }
        int handled = 0;
    };
    Leaver leaver;
    BLooper looper;
    looper.AddHandler(&leaver);
    looper.PostMessage(BMessage(1), leaver);
    looper.PostMessage(BMessage(2), leaver);
    looper.PostMessage(B_QUIT_REQUESTED);
    looper.Loop();
    EXPECT_EQ(leaver.handled, 1);
}

TEST(BMessenger, WithoutTargetReportsIt) {
    const BMessenger messenger;
    EXPECT_FALSE(messenger.IsValid());
    EXPECT_EQ(messenger.SendMessage(1), B_NO_INIT);
    const BHandler loose;
    EXPECT_EQ(BMessenger(loose), messenger);
}

TEST(BMessenger, SendsToTheLooperAndItsHandlers) {
    Log log;
    LoggingLooper looper(log);
    LoggingHandler handler("handler", log);
    looper.AddHandler(&handler);
    EXPECT_TRUE(BMessenger(handler).IsValid());
    EXPECT_EQ(BMessenger(handler).SendMessage(1), B_OK);
    EXPECT_EQ(BMessenger(looper).SendMessage(BMessage(2)), B_OK);
    EXPECT_EQ(BMessenger(looper.Port(), handler.Token()).SendMessage(3), B_OK);
    EXPECT_EQ(BMessenger(looper).SendMessage(B_QUIT_REQUESTED), B_OK);
    looper.Loop();
    EXPECT_THAT(log.Lines(), ElementsAre("handler:1", "looper:2", "handler:3", "asked"));
}

TEST(BMessenger, ComparesByTarget) {
    BLooper looper;
    BLooper other;
    BHandler handler;
    looper.AddHandler(&handler);
    EXPECT_EQ(BMessenger(looper), BMessenger(looper.Port()));
    EXPECT_EQ(BMessenger(handler), BMessenger(handler));
    EXPECT_NE(BMessenger(handler), BMessenger(looper));
    EXPECT_NE(BMessenger(looper), BMessenger(other));
}

TEST(BMessenger, FailsOnceItsTargetIsGone) {
    BMessenger messenger;
    {
        BLooper looper;
        looper.Run();
        messenger = BMessenger(looper);
        EXPECT_EQ(messenger.SendMessage(1), B_OK);
    }
    EXPECT_FALSE(messenger.IsValid());
    EXPECT_EQ(messenger.SendMessage(1), B_NOT_ALLOWED);
}

TEST(MessageQueue, GivesEnvelopesInOrder) {
    MessageQueue queue;
    EXPECT_EQ(queue.Post(BMessage(1), 7), B_OK);
    EXPECT_EQ(queue.Post(BMessage(2), kPreferredHandler), B_OK);
    Envelope envelope;
    ASSERT_TRUE(queue.Take(&envelope));
    EXPECT_EQ(envelope.message.what, 1u);
    EXPECT_EQ(envelope.handler, 7u);
    ASSERT_TRUE(queue.Take(&envelope));
    EXPECT_EQ(envelope.message.what, 2u);
}

TEST(MessageQueue, DropsWhatIsQueuedWhenClosed) {
    MessageQueue queue;
    queue.Post(BMessage(1), kPreferredHandler);
    EXPECT_TRUE(queue.IsOpen());
    queue.Close();
    queue.Close();
    Envelope envelope;
    EXPECT_FALSE(queue.IsOpen());
    EXPECT_FALSE(queue.Take(&envelope));
    EXPECT_EQ(queue.Post(BMessage(2), kPreferredHandler), B_NOT_ALLOWED);
}

TEST(MessageQueue, ClosingWakesTheTaker) {
    MessageQueue queue;
    bool taken = true;
    std::thread taker([&] {
        Envelope envelope;
        taken = queue.Take(&envelope);
    });
    queue.Close();
    taker.join();
    EXPECT_FALSE(taken);
}

}  // namespace kirto::test
