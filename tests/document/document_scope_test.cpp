#include "document/document_scope.h"

#include <atomic>
#include <barrier>
#include <gtest/gtest.h>
#include <latch>
#include <thread>

#include "document/document_checks.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

// Whether another thread can enter as a reader right now.
bool OthersCanRead(AnimationDocument& document) {
    bool entered = false;
    std::thread([&] {
        const TryReaderScope reader(document);
        entered = reader.Entered();
    }).join();
    return entered;
}

// A thread that enters as the writer, and tells when it is inside.
class WaitingWriter {
  public:
    explicit WaitingWriter(AnimationDocument& document)
        : thread_([this, &document] {
              started_.count_down();
              document.WriterEnter();
              entered_ = true;
              document.WriterExit();
          }) {
        started_.wait();
    }
    ~WaitingWriter() { Join(); }

    bool Entered() const { return entered_; }
    void Join() {
        if (thread_.joinable()) thread_.join();
    }

  private:
    std::latch started_{1};
    std::atomic<bool> entered_ = false;
    std::thread thread_;
};

// As many frames as it counts, numbered in order.
bool IsWhole(const AnimationDocument& document) {
    int32 visited = 0;
    for (const FramePointer& frame : document.Current()->frames) {
        if (frame->index != visited++ || frame->name != "frame") return false;
    }
    return visited == document.FrameCount() && (document.Selected() == -1) == (visited == 0);
}

// Threads that begin their work together.
template <typename Work>
std::vector<std::thread> Start(int32 count, Work work) {
    const auto all_started = std::make_shared<std::latch>(count);
    std::vector<std::thread> threads;
    for (int32 i = 0; i < count; ++i) {
        threads.emplace_back([=] {
            all_started->arrive_and_wait();
            work(i);
        });
    }
    return threads;
}

void Join(std::vector<std::thread>& threads) {
    for (std::thread& thread : threads)
        thread.join();
}

}  // namespace

TEST(ReaderScope, CountsItsReaderForAsLongAsItLives) {
    DocumentFixture fixture;
    {
        const ReaderScope reader(fixture.document);
        EXPECT_EQ(fixture.document.reader_count, 1);
        EXPECT_EQ(t_scopes_held, 1);
    }
    EXPECT_EQ(fixture.document.reader_count, 0);
    EXPECT_EQ(t_scopes_held, 0);
}

TEST(ReaderScope, StepsOutAndInAgain) {
    DocumentFixture fixture;
    ReaderScope reader(fixture.document);

    reader.Leave();
    EXPECT_EQ(fixture.document.reader_count, 0);
    reader.Leave();
    EXPECT_EQ(fixture.document.reader_count, 0);
    fixture.document.Select(0);
    reader.Enter();
    reader.Enter();
    EXPECT_EQ(fixture.document.reader_count, 1);
    EXPECT_EQ(t_scopes_held, 1);
}

TEST(ReaderScope, LetsReadersBeInsideTogether) {
    constexpr int32 kReaders = 8;
    DocumentFixture fixture;
    std::barrier all_inside(kReaders);
    std::atomic<int32> largest = 0;

    auto readers = Start(kReaders, [&](int32) {
        const ReaderScope reader(fixture.document);
        all_inside.arrive_and_wait();
        largest = fixture.document.reader_count;
        all_inside.arrive_and_wait();
    });
    Join(readers);

    EXPECT_EQ(largest, kReaders);
    EXPECT_EQ(fixture.document.reader_count, 0);
}

TEST(TryReaderScope, EntersBesideAnotherReader) {
    DocumentFixture fixture;
    const ReaderScope reader(fixture.document);

    EXPECT_TRUE(OthersCanRead(fixture.document));
    EXPECT_EQ(fixture.document.reader_count, 1);
}

TEST(TryReaderScope, StaysOutWhileAWriterIsInside) {
    DocumentFixture fixture;
    {
        const WriterScope writer(fixture.document);
        EXPECT_FALSE(OthersCanRead(fixture.document));
        EXPECT_EQ(fixture.document.reader_count, 0);
    }
    EXPECT_TRUE(OthersCanRead(fixture.document));
}

TEST(TryReaderScope, IsNeverTurnedAwayByOtherReaders) {
    constexpr int32 kThreads = 4;
    constexpr int32 kRounds = 5000;
    DocumentFixture fixture;
    std::atomic<int32> turned_away = 0;

    auto readers = Start(kThreads, [&](int32 number) {
        for (int32 round = 0; round < kRounds; ++round) {
            if (number % 2 == 0) {
                const ReaderScope reader(fixture.document);
            } else {
                const TryReaderScope reader(fixture.document);
                if (!reader.Entered()) ++turned_away;
            }
        }
    });
    Join(readers);

    EXPECT_EQ(turned_away, 0);
    EXPECT_EQ(fixture.document.reader_count, 0);
}

TEST(TryReaderScope, CountsOnTheThreadOnlyWhenItEntered) {
    DocumentFixture fixture;
    {
        const TryReaderScope reader(fixture.document);
        EXPECT_EQ(t_scopes_held, 1);
    }
    EXPECT_EQ(t_scopes_held, 0);
    delete_sem(fixture.document.frame_sem);
    const TryReaderScope reader(fixture.document);
    EXPECT_FALSE(reader.Entered());
    EXPECT_EQ(t_scopes_held, 0);
}

TEST(WriterScope, EntersOnlyAfterTheReaderInsideHasLeft) {
    DocumentFixture fixture;
    fixture.document.ReaderEnter();
    WaitingWriter writer(fixture.document);

    snooze(20000);
    EXPECT_FALSE(writer.Entered());
    fixture.document.ReaderExit();
    writer.Join();

    EXPECT_TRUE(writer.Entered());
}

TEST(WriterScope, LetsNewReadersInWhileItWaitsForTheOldOnes) {
    DocumentFixture fixture;
    fixture.document.ReaderEnter();
    WaitingWriter writer(fixture.document);

    for (int32 i = 0; i < 20; ++i) {
        snooze(500);
        EXPECT_TRUE(OthersCanRead(fixture.document));
        EXPECT_FALSE(writer.Entered());
    }
    fixture.document.ReaderExit();
    writer.Join();

    EXPECT_TRUE(writer.Entered());
}

TEST(WriterScope, ShutsOutReadersAndOtherWriters) {
    constexpr int32 kThreads = 8;
    constexpr int32 kRounds = 1000;
    DocumentFixture fixture;
    // Plain numbers on purpose: only the lock keeps them whole.
    int64 first = 0;
    int64 second = 0;
    std::atomic<int32> torn_reads = 0;

    auto threads = Start(kThreads, [&](int32 number) {
        for (int32 round = 0; round < kRounds; ++round) {
            if (number < 3) {
                const WriterScope writer(fixture.document);
                ++first;
                ++second;
            } else {
                const ReaderScope reader(fixture.document);
                if (first != second) ++torn_reads;
            }
        }
    });
    Join(threads);

    EXPECT_EQ(first, 3 * kRounds);
    EXPECT_EQ(second, 3 * kRounds);
    EXPECT_EQ(torn_reads, 0);
    EXPECT_EQ(fixture.document.reader_count, 0);
}

TEST(WriterScope, KeepsTheListWholeForReadersWhileItIsEdited) {
    constexpr int32 kEdits = 400;
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    std::atomic<bool> finished = false;
    std::atomic<int32> broken_lists = 0;
    std::atomic<int32> reads = 0;

    auto readers = Start(4, [&](int32 number) {
        while (!finished) {
            // Outside the lock: readers that follow one another without a gap keep writers out.
            snooze(100 + number * 50);
            const TryReaderScope reader(document);
            if (!reader.Entered()) continue;
            if (!IsWhole(document)) ++broken_lists;
            ++reads;
        }
    });
    for (int32 edit = 0; edit < kEdits; ++edit) {
        Insert(document, "frame", edit % (document.FrameCount() + 1));
        if (edit % 3 == 0) document.MoveFrame(edit % 2 == 0);
        if (edit % 4 == 0) document.RemoveFrame();
        if (edit % 5 == 0) document.ReverseFrames();
        document.Select(edit % 7);
        if (edit % 100 == 99) document.Reset();
    }
    while (reads == 0)
        snooze(100);
    finished = true;
    Join(readers);

    EXPECT_EQ(broken_lists, 0);
    ExpectConsistent(document);
}

TEST(AnimationDocument, NeverCountsFewerThanNoReaders) {
    DocumentFixture fixture;

    fixture.document.ReaderExit();

    EXPECT_EQ(fixture.document.reader_count, 0);
    fixture.document.ReaderEnter();
    EXPECT_EQ(fixture.document.reader_count, 1);
    fixture.document.ReaderExit();
}

TEST(AnimationDocument, IgnoresItsLockOnceTheSemaphoreIsGone) {
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    const DebugRecorder debug;
    const AlertRecorder alerts;
    delete_sem(document.frame_sem);

    document.ReaderEnter();
    EXPECT_EQ(document.reader_count, 0);
    document.ReaderExit();
    EXPECT_FALSE(document.TryReaderEnter());
    document.WriterEnter();
    document.WriterExit();
    EXPECT_TRUE(Insert(document, "one", 0));
    EXPECT_TRUE(Insert(document, "two", 1));
    EXPECT_TRUE(document.Select(1));
    document.MoveFrame(true);
    document.ReverseFrames();
    EXPECT_EQ(Names(document), (NameList{"one", "two"}));
    document.RemoveFrame();
    EXPECT_EQ(Names(document), NameList{"two"});
    document.Reset();

    EXPECT_EQ(document.FrameCount(), 0);
    EXPECT_EQ(debug.Text(), "");
    EXPECT_TRUE(alerts.Lines().empty());
}

TEST(AnimationDocument, LetsAWaitingWriterGoWhenTheSemaphoreIsDeleted) {
    DocumentFixture fixture;
    fixture.document.ReaderEnter();
    WaitingWriter writer(fixture.document);

    delete_sem(fixture.document.frame_sem);
    writer.Join();

    EXPECT_TRUE(writer.Entered());
    EXPECT_EQ(fixture.document.reader_count, 1);
}

TEST(AnimationDocument, MissesNoChangeThatIsCarriedOutWhileItIsAskedForUnsavedOnes) {
    constexpr int32 kRounds = 300;
    DocumentFixture fixture;
    AnimationDocument& document = fixture.document;
    std::atomic<int32> round = 0;
    std::thread editor([&] {
        for (int32 i = 1; i <= kRounds; ++i) {
            while (round != i)
                std::this_thread::yield();
            document.SetModified(true);
            document.changes_waiting = 0;
        }
    });
    int32 missed = 0;

    for (int32 i = 1; i <= kRounds; ++i) {
        document.changes_waiting = 1;
        document.SetModified(false);
        round = i;
        do {
            if (!document.HasUnsavedChanges()) ++missed;
        } while (document.changes_waiting > 0);
    }
    editor.join();

    EXPECT_EQ(missed, 0);
}

#ifndef NDEBUG
TEST(WriterScope, ToldToWaitForItsOwnThreadIsAMistakeThatFailsEveryTime) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    DocumentFixture fixture;
    const ReaderScope reader(fixture.document);

    EXPECT_DEATH(fixture.document.Select(0), "t_scopes_held == 0");
    EXPECT_DEATH(ReaderScope{fixture.document}, "t_scopes_held == 0");
}
#endif

}  // namespace kirto::test
