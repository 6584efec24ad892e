#include "document/document_lock.h"

#include <atomic>
#include <barrier>
#include <gtest/gtest.h>
#include <latch>
#include <thread>
#include <vector>

#include "document/document_checks.h"
#include "document/document_scope.h"
#include "support/sleeping_thread.h"
#include "support/test_support.h"

namespace kirto::test {

namespace {

// Enters as a reader on another thread, and leaves again.
void ReadElsewhere(DocumentLock& lock) {
    std::thread([&lock] { const ReaderScope reader(lock); }).join();
}

// A thread that enters as the writer, and tells when it was inside.
class WaitingWriter {
  public:
    explicit WaitingWriter(DocumentLock& lock)
        : thread_([this, &lock] {
              number_ = ThreadNumber();
              started_.count_down();
              lock.WriterEnter();
              entered_ = true;
              lock.WriterExit();
          }) {
        started_.wait();
    }
    ~WaitingWriter() { Join(); }

    // Asked once the thread can't go on by itself.
    bool Entered() const {
        WaitUntilAsleep(number_);
        return entered_;
    }
    void Join() {
        if (thread_.joinable()) thread_.join();
    }

  private:
    std::latch started_{1};
    pid_t number_ = 0;
    std::atomic<bool> entered_ = false;
    std::thread thread_;
};

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
    DocumentLock lock;
    {
        const ReaderScope reader(lock);
        EXPECT_EQ(lock.reader_count, 1);
        EXPECT_EQ(t_scopes_held, 1);
    }
    EXPECT_EQ(lock.reader_count, 0);
    EXPECT_EQ(t_scopes_held, 0);
}

TEST(ReaderScope, LetsReadersBeInsideTogether) {
    constexpr int32 kReaders = 8;
    DocumentLock lock;
    std::barrier all_inside(kReaders);
    std::atomic<int32> largest = 0;

    auto readers = Start(kReaders, [&](int32) {
        const ReaderScope reader(lock);
        all_inside.arrive_and_wait();
        largest = lock.reader_count;
        all_inside.arrive_and_wait();
    });
    Join(readers);

    EXPECT_EQ(largest, kReaders);
    EXPECT_EQ(lock.reader_count, 0);
}

TEST(WriterScope, HoldsTheSemaphoreForAsLongAsItLives) {
    DocumentLock lock;
    {
        const WriterScope writer(lock);
        EXPECT_EQ(try_acquire_sem(lock.frame_sem), B_WOULD_BLOCK);
        EXPECT_EQ(lock.reader_count, 0);
    }
    EXPECT_EQ(try_acquire_sem(lock.frame_sem), B_OK);
}

TEST(WriterScope, LetsNewReadersInWhileItWaitsForTheOldOnes) {
    DocumentLock lock;
    lock.ReaderEnter();
    WaitingWriter writer(lock);

    for (int32 i = 0; i < 20; ++i) {
        ReadElsewhere(lock);
        EXPECT_FALSE(writer.Entered());
    }
    lock.ReaderExit();
    writer.Join();

    EXPECT_TRUE(writer.Entered());
}

TEST(WriterScope, ShutsOutReadersAndOtherWriters) {
    constexpr int32 kThreads = 8;
    constexpr int32 kRounds = 1000;
    DocumentLock lock;
    // Plain numbers on purpose: only the lock keeps them whole.
    int64 first = 0;
    int64 second = 0;
    std::atomic<int32> torn_reads = 0;

    auto threads = Start(kThreads, [&](int32 number) {
        for (int32 round = 0; round < kRounds; ++round) {
            if (number < 3) {
                const WriterScope writer(lock);
                ++first;
                ++second;
            } else {
                const ReaderScope reader(lock);
                if (first != second) ++torn_reads;
            }
        }
    });
    Join(threads);

    EXPECT_EQ(first, 3 * kRounds);
    EXPECT_EQ(second, 3 * kRounds);
    EXPECT_EQ(torn_reads, 0);
    EXPECT_EQ(lock.reader_count, 0);
}

TEST(DocumentLock, NeverCountsFewerThanNoReaders) {
    DocumentLock lock;

    lock.ReaderExit();

    EXPECT_EQ(lock.reader_count, 0);
    lock.ReaderEnter();
    EXPECT_EQ(lock.reader_count, 1);
    lock.ReaderExit();
}

TEST(DocumentLock, LetsAWaitingWriterGoWhenTheSemaphoreIsDeleted) {
    DocumentLock lock;
    lock.ReaderEnter();
    WaitingWriter writer(lock);
    EXPECT_FALSE(writer.Entered());

    delete_sem(lock.frame_sem);
    writer.Join();

    EXPECT_TRUE(writer.Entered());
    EXPECT_EQ(lock.reader_count, 1);
}

TEST(DocumentLock, GivesBackItsSemaphore) {
    sem_id semaphore = -1;
    {
        const DocumentLock lock;
        semaphore = lock.frame_sem;
    }

    EXPECT_EQ(delete_sem(semaphore), B_BAD_SEM_ID);
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

#ifndef NDEBUG
TEST(WriterScope, ToldToWaitForItsOwnThreadIsAMistakeThatFailsEveryTime) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    DocumentFixture fixture;
    const ReaderScope reader(fixture.document);

    EXPECT_DEATH(fixture.document.SetModified(true), "t_scopes_held == 0");
    EXPECT_DEATH(ReaderScope{fixture.document}, "t_scopes_held == 0");
}
#endif

}  // namespace kirto::test
