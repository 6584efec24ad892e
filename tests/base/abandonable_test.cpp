#include "base/abandonable.h"

#include <gtest/gtest.h>
#include <latch>
#include <memory>
#include <stdexcept>
#include <thread>

#include "base/allocation.h"

namespace kirto::test {

namespace {

using namespace std::chrono_literals;

TEST(FinishOrAbandon, WaitsForTheTask) {
    Work work;
    work.Begin();
    const auto thread = std::make_shared<std::thread::id>();

    EXPECT_TRUE(FinishOrAbandon(work, [thread] { *thread = std::this_thread::get_id(); }));

    EXPECT_NE(*thread, std::thread::id());
    EXPECT_NE(*thread, std::this_thread::get_id());
    EXPECT_TRUE(WaitForAbandoned(0ms));
}

TEST(FinishOrAbandon, DoesNotWaitForATaskThatIsStoppedButForItsEnd) {
    Work work;
    work.Begin();
    const auto release = std::make_shared<std::latch>(1);
    const auto owned = std::make_shared<int>();

    EXPECT_FALSE(FinishOrAbandon(work, [&work, release, owned] {
        work.Stop(work.Running());
        release->wait();
    }));

    EXPECT_FALSE(WaitForAbandoned(1ms));
    EXPECT_GT(owned.use_count(), 1);
    release->count_down();
    EXPECT_TRUE(WaitForAbandoned(10s));
    EXPECT_EQ(owned.use_count(), 1);
}

TEST(FinishOrAbandon, ThrowsWhatTheTaskThrows) {
    Work work;
    work.Begin();

    EXPECT_THROW(FinishOrAbandon(work, [] { throw std::out_of_range("none"); }), std::out_of_range);
}

TEST(FinishOrAbandon, SaysThatTheWorkGoesOn) {
    const auto release = std::make_shared<std::latch>(1);
    int64 told = 0;
    Work work([&](uint64, int64 done, int64) {
        told = done;
        release->count_down();
    });
    work.Begin();
    work.Report(5, 8);

    EXPECT_TRUE(FinishOrAbandon(work, [release] { release->wait(); }));

    EXPECT_EQ(told, 5);
}

TEST(FinishOrAbandon, FailingAllocationsFailInTheTaskToo) {
    Work work;
    work.Begin();
    const AllocationFault fault(2);
    const auto failed = std::make_shared<std::pair<bool, bool>>();

    FinishOrAbandon(work, [failed] {
        failed->first = AllocationShouldFail();
        failed->second = AllocationShouldFail();
    });

    EXPECT_EQ(*failed, std::make_pair(false, true));
    EXPECT_EQ(fault.Calls(), 2);
}

TEST(ExitStatus, IsTheStatusWhereNothingIsLeftToWaitFor) {
    EXPECT_EQ(ExitStatus(3), 3);
}

void AbandonATaskForGood() {
    Work work;
    work.Begin();
    FinishOrAbandon(work, [&work] {
        work.Stop(work.Running());
        std::this_thread::sleep_for(1h);
    });
}

TEST(ExitStatusDeathTest, EndsTheProgramWhereATaskGoesOn) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            AbandonATaskForGood();
            ExitStatus(4);
        },
        testing::ExitedWithCode(4), "");
}

}  // namespace

}  // namespace kirto::test
