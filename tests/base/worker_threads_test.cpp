#include "base/worker_threads.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <thread>
#include <vector>

namespace kirto::test {

namespace {

using namespace std::chrono_literals;

class FunctionTask : public WorkerThreads::Task {
  public:
    explicit FunctionTask(std::function<void(int32)> function = [](int32) {})
        : function_(std::move(function)) {}
    void Run(int32 worker) noexcept override { function_(worker); }

  private:
    const std::function<void(int32)> function_;
};

void WaitUntilDone(WorkerThreads& threads, const FunctionTask& task) {
    while (!threads.WaitFor(task, 1h)) {
    }
}

TEST(WorkerThreads, CarryOutEachTaskOnce) {
    for (const int32 limit : {1, 2, 16}) {
        std::array<std::atomic<int32>, 50> runs{};
        std::vector<FunctionTask> tasks;
        for (auto& count : runs)
            tasks.emplace_back([&count](int32) { ++count; });
        WorkerThreads threads(limit);
        for (FunctionTask& task : tasks)
            ASSERT_TRUE(threads.Add(task));

        for (const FunctionTask& task : tasks)
            WaitUntilDone(threads, task);

        for (const auto& count : runs)
            EXPECT_EQ(count, 1);
    }
}

TEST(WorkerThreads, BeginTheTasksInTheirOrder) {
    std::vector<int32> begun;
    std::vector<FunctionTask> tasks;
    for (int32 i = 0; i < 20; ++i)
        tasks.emplace_back([&begun, i](int32) { begun.push_back(i); });
    WorkerThreads threads(1);
    for (FunctionTask& task : tasks)
        threads.Add(task);
    WaitUntilDone(threads, tasks.back());

    ASSERT_EQ(begun.size(), 20u);
    EXPECT_TRUE(std::is_sorted(begun.begin(), begun.end()));
}

TEST(WorkerThreads, SayThatATaskIsNotDoneYet) {
    std::atomic<bool> may_end = false;
    FunctionTask task([&](int32) {
        while (!may_end)
            std::this_thread::yield();
    });
    WorkerThreads threads(1);
    threads.Add(task);

    EXPECT_FALSE(threads.WaitFor(task, 0ms));

    may_end = true;
    WaitUntilDone(threads, task);
    EXPECT_TRUE(threads.WaitFor(task, 0ms));
}

TEST(WorkerThreads, WorkSideBySideUpToTheirLimit) {
    // Each of the two tasks ends once both have begun.
    std::atomic<int32> begun = 0;
    std::atomic<int32> workers = 0;
    const auto meet = [&](int32 worker) {
        workers += 1 << worker;
        ++begun;
        while (begun < 2)
            std::this_thread::yield();
    };
    FunctionTask first(meet);
    FunctionTask second(meet);
    WorkerThreads threads(2);
    threads.Add(first);
    threads.Add(second);
    WaitUntilDone(threads, first);
    WaitUntilDone(threads, second);

    EXPECT_EQ(workers, 1 + 2);
}

TEST(WorkerThreads, EndOnceWhatHasBegunIsDone) {
    std::atomic<bool> begun = false;
    std::atomic<bool> may_end = false;
    bool ended = false;
    FunctionTask task([&](int32) {
        begun = true;
        while (!may_end)
            std::this_thread::yield();
        ended = true;
    });
    auto threads = std::make_unique<WorkerThreads>(1);
    threads->Add(task);
    while (!begun)
        std::this_thread::yield();
    std::thread closer([&] { threads.reset(); });
    may_end = true;
    closer.join();

    EXPECT_TRUE(ended);
}

TEST(WorkerThreads, EndWithoutEverHavingHadATask) {
    const WorkerThreads threads(16);
}

}  // namespace

}  // namespace kirto::test
