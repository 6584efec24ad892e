#include "base/shared_progress.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace kirto::test {

namespace {

// Work that has taken so long already that the next report is told.
struct LongWork {
    std::vector<std::pair<int64, int64>> told;
    Work work{[this](uint64, int64 done, int64 total) { told.emplace_back(done, total); }};

    LongWork() { work.Begin(); }
    // Tells until the work's reporter was called.
    void TellUntilHeard(SharedProgress& progress) {
        const size_t before = told.size();
        while (told.size() == before)
            progress.Tell();
    }
};

TEST(SharedProgress, TellsWhatAllThreadsHaveDone) {
    LongWork work;
    SharedProgress progress(work.work, 100);
    std::thread first([&] { progress.Add(20); });
    std::thread second([&] { progress.Add(3); });
    first.join();
    second.join();
    EXPECT_TRUE(work.told.empty());

    work.TellUntilHeard(progress);

    EXPECT_EQ(work.told.back(), (std::pair<int64, int64>{23, 100}));
}

TEST(SharedProgress, TellsAtOnceWhatTheWorkingThreadItselfDoes) {
    LongWork work;
    SharedProgress progress(work.work, 100);
    int64 done = 0;
    while (work.told.empty()) {
        ++done;
        progress.Add(1);
    }

    EXPECT_EQ(work.told.back(), (std::pair<int64, int64>{done, 100}));
}

TEST(SharedProgress, LetsAnyThreadAskWhetherToStop) {
    LongWork work;
    const SharedProgress progress(work.work, 1);
    EXPECT_FALSE(progress.StopRequested());

    work.work.Stop(work.work.Running());

    bool stopped = false;
    std::thread([&] { stopped = progress.StopRequested(); }).join();
    EXPECT_TRUE(stopped);
}

}  // namespace

}  // namespace kirto::test
