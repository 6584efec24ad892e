#include "base/worker_threads.h"

#include <system_error>

namespace kirto {

WorkerThreads::~WorkerThreads() {
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
        waiting_.clear();
    }
    more_.notify_all();
    for (std::thread& thread : threads_)
        thread.join();
}

bool WorkerThreads::Add(Task& task) {
    bool crowded = false;
    {
        const std::lock_guard lock(mutex_);
        waiting_.push_back(&task);
        crowded = waiting_.size() > idle_;
    }
    more_.notify_one();
    if (crowded && threads_.size() < limit_) StartThread();
    return !threads_.empty();
}

bool WorkerThreads::WaitFor(const Task& task, std::chrono::milliseconds longest) {
    std::unique_lock lock(mutex_);
    awaited_ = &task;
    const bool done = done_.wait_for(lock, longest, [&] { return task.done_; });
    awaited_ = nullptr;
    return done;
}

void WorkerThreads::StartThread() {
    const int32 worker = static_cast<int32>(threads_.size());
    try {
        threads_.emplace_back([this, worker] { CarryOutTasks(worker); });
    } catch (const std::system_error&) {
        // The others do its share.
    }
}

void WorkerThreads::CarryOutTasks(int32 worker) {
    std::unique_lock lock(mutex_);
    for (;;) {
        ++idle_;
        more_.wait(lock, [this] { return over_ || !waiting_.empty(); });
        --idle_;
        if (over_) return;
        Task* task = waiting_.front();
        waiting_.pop_front();
        lock.unlock();
        task->Run(worker);
        lock.lock();
        task->done_ = true;
        if (task == awaited_) done_.notify_one();
    }
}

}  // namespace kirto
