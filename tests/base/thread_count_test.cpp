#include "base/thread_count.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <thread>

#include "support/environment.h"
#include "support/threads.h"

namespace kirto::test {

namespace {

TEST(ThreadCount, IsWhatWasSetWithinItsBounds) {
    const ScopedThreads threads(3);
    EXPECT_EQ(ThreadCount(), 3);

    SetThreadCount(1000);
    EXPECT_EQ(ThreadCount(), kMostThreads);
    SetThreadCount(1);
    EXPECT_EQ(ThreadCount(), 1);
}

TEST(ThreadCount, IsTheDefaultAgainWhenItIsSetToZeroOrLess) {
    const ScopedThreads threads(0);
    const int32 before = ThreadCount();
    SetThreadCount(before == 5 ? 6 : 5);

    SetThreadCount(0);
    EXPECT_EQ(ThreadCount(), before);
    SetThreadCount(-7);
    EXPECT_EQ(ThreadCount(), before);
}

TEST(ThreadCount, DefaultsToWhatTheEnvironmentSays) {
    for (const auto& [value, count] :
         {std::pair{"1", 1}, std::pair{"7", 7}, std::pair{"64", 64}, std::pair{"65", 64},
          std::pair{"0", 1}, std::pair{"-3", 1}}) {
        const ScopedEnvironment variable("KIRTO_THREADS", value);
        EXPECT_EQ(DefaultThreadCount(), count) << value;
    }
}

TEST(ThreadCount, DefaultsToWhatTheProcessorRunsAtATime) {
    const int32 cores =
        std::clamp(static_cast<int32>(std::thread::hardware_concurrency()), 1, kMostThreads);
    for (const char* value :
         {static_cast<const char*>(nullptr), "", "x", "2 threads", "1e1", "99999999999999999999"}) {
        const ScopedEnvironment variable("KIRTO_THREADS", value);
        EXPECT_EQ(DefaultThreadCount(), cores) << (value ? value : "unset");
    }
}

}  // namespace

}  // namespace kirto::test
