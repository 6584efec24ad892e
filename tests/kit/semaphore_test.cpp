#include "kit/semaphore.h"

#include <atomic>
#include <gtest/gtest.h>
#include <latch>
#include <limits>
#include <thread>
#include <vector>

#include "base/allocation.h"
#include "support/sleeping_thread.h"

namespace kirto::test {

TEST(Semaphore, GivesAsManyUnitsAsItsCount) {
    const sem_id id = create_sem(2, "two");
    ASSERT_GT(id, 0);
    EXPECT_EQ(acquire_sem(id), B_OK);
    EXPECT_EQ(try_acquire_sem(id), B_OK);
    EXPECT_EQ(try_acquire_sem(id), B_WOULD_BLOCK);
    EXPECT_EQ(release_sem(id), B_OK);
    EXPECT_EQ(acquire_sem(id), B_OK);
    EXPECT_EQ(delete_sem(id), B_OK);
}

TEST(Semaphore, NeedsNoName) {
    const sem_id id = create_sem(0, nullptr);
    EXPECT_GT(id, 0);
    EXPECT_EQ(delete_sem(id), B_OK);
}

TEST(Semaphore, IsNotMadeWithANegativeCount) {
    EXPECT_EQ(create_sem(-1, "negative"), B_BAD_VALUE);
}

TEST(Semaphore, IsNotMadeWithoutMemory) {
    const AllocationFault fault(1);
    EXPECT_EQ(create_sem(1, "unlucky"), B_NO_MEMORY);
}

TEST(Semaphore, UnknownIdsAreRefused) {
    const sem_id id = create_sem(1, "deleted");
    delete_sem(id);
    for (const sem_id unknown : {id, sem_id{0}, sem_id{-1}}) {
        EXPECT_EQ(acquire_sem(unknown), B_BAD_SEM_ID);
        EXPECT_EQ(try_acquire_sem(unknown), B_BAD_SEM_ID);
        EXPECT_EQ(release_sem(unknown), B_BAD_SEM_ID);
        EXPECT_EQ(delete_sem(unknown), B_BAD_SEM_ID);
    }
}

TEST(Semaphore, IdsAreNotReusedSoon) {
    const sem_id first = create_sem(1, "first");
    delete_sem(first);
    for (int i = 0; i < 1000; ++i) {
        const sem_id next = create_sem(1, "next");
        EXPECT_NE(next, first);
        delete_sem(next);
    }
}

TEST(Semaphore, IsNotReleasedPastTheLargestCount) {
    const sem_id id = create_sem(std::numeric_limits<int32>::max(), "full");
    EXPECT_EQ(release_sem(id), B_BAD_VALUE);
    EXPECT_EQ(try_acquire_sem(id), B_OK);
    EXPECT_EQ(release_sem(id), B_OK);
    delete_sem(id);
}

TEST(Semaphore, AReleaseLetsAWaiterGo) {
    const sem_id id = create_sem(0, "gate");
    status_t status = B_ERROR;
    std::thread waiter([&] { status = acquire_sem(id); });
    EXPECT_EQ(release_sem(id), B_OK);
    waiter.join();
    EXPECT_EQ(status, B_OK);
    EXPECT_EQ(try_acquire_sem(id), B_WOULD_BLOCK);
    delete_sem(id);
}

TEST(Semaphore, DeletingItWakesAllWaiters) {
    const sem_id id = create_sem(0, "doomed");
    constexpr int kWaiters = 4;
    std::latch started(kWaiters);
    pid_t numbers[kWaiters] = {};
    std::atomic<int> refused = 0;
    std::vector<std::thread> waiters;
    for (pid_t& number : numbers) {
        waiters.emplace_back([&] {
            number = ThreadNumber();
            started.count_down();
            if (acquire_sem(id) == B_BAD_SEM_ID) ++refused;
        });
    }
    started.wait();
    for (const pid_t number : numbers)
        WaitUntilAsleep(number);
    EXPECT_EQ(delete_sem(id), B_OK);
    for (std::thread& waiter : waiters)
        waiter.join();
    EXPECT_EQ(refused, kWaiters);
}

TEST(Semaphore, OfCountOneExcludes) {
    const sem_id id = create_sem(1, "mutex");
    int counter = 0;  // guarded by the semaphore alone
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 500; ++round) {
                acquire_sem(id);
                ++counter;
                release_sem(id);
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(counter, 2000);
    delete_sem(id);
}

TEST(Semaphore, IsMadeAndDeletedByManyThreadsAtOnce) {
    std::atomic<int> failures = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int round = 0; round < 200; ++round) {
                const sem_id id = create_sem(1, "short-lived");
                if (acquire_sem(id) != B_OK || delete_sem(id) != B_OK) ++failures;
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(failures, 0);
}

TEST(Snooze, ReturnsAtOnceForNoTime) {
    EXPECT_EQ(snooze(0), B_OK);
    EXPECT_EQ(snooze(std::numeric_limits<bigtime_t>::min()), B_OK);
    EXPECT_EQ(snooze(1), B_OK);
}

}  // namespace kirto::test
