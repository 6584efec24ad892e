#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "base/types.h"

namespace kirto {

// Threads that carry out the tasks of the one that owns this, begun in the order in which they were
// added. No more threads are started than there have been tasks waiting for one.
class WorkerThreads {
  public:
    // Owned by whoever adds it, until it is done or these threads are gone.
    class Task {
      public:
        virtual ~Task() = default;
        // worker: 0 to limit - 1; tasks with the same number run one after the other.
        virtual void Run(int32 worker) noexcept = 0;

      private:
        friend WorkerThreads;
        bool done_ = false;  // guarded by the threads' mutex
    };

    // limit: of the number of threads, 1 or more.
    explicit WorkerThreads(int32 limit) : limit_(static_cast<size_t>(limit)) {}
    // Forgets the tasks that have not begun, and waits for those that have.
    ~WorkerThreads();
    WorkerThreads(const WorkerThreads&) = delete;
    WorkerThreads& operator=(const WorkerThreads&) = delete;

    // False when there is no thread to carry it out, since the system gives none.
    bool Add(Task& task);
    // Waits for the task, at most that long. True when it is done.
    bool WaitFor(const Task& task, std::chrono::milliseconds longest);

  private:
    void StartThread();
    void CarryOutTasks(int32 worker);

    const size_t limit_;
    std::mutex mutex_;  // guards what stands between it and the threads
    std::condition_variable more_;
    std::condition_variable done_;
    std::deque<Task*> waiting_;
    const Task* awaited_ = nullptr;  // by the owner
    size_t idle_ = 0;                // threads that wait for a task
    bool over_ = false;
    std::vector<std::thread> threads_;  // the owner's
};

}  // namespace kirto
