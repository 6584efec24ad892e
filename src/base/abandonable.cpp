#include "base/abandonable.h"

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

#include "base/allocation.h"

namespace kirto {

namespace {

// How often the waiting thread looks whether it is to stop, and tells that the work goes on.
constexpr std::chrono::milliseconds kLook{20};

// The tasks that nobody waits for.
struct Abandoned {
    std::mutex mutex;
    std::condition_variable fewer;
    int count = 0;
};

// Never destroyed: a task may end later than everything else.
Abandoned& AllAbandoned() {
    static auto* abandoned = new Abandoned;
    return *abandoned;
}

// What the waiting thread and the task's thread share.
struct Meeting {
    std::mutex mutex;
    std::condition_variable over;
    std::function<void()> task;
    std::shared_ptr<AllocationCounter> fault;  // of the waiting thread
    bool done = false;
    bool abandoned = false;
    std::exception_ptr thrown;
};

void RunTask(Meeting& meeting) {
    BorrowAllocationFault(std::move(meeting.fault));
    std::exception_ptr thrown;
    try {
        meeting.task();
    } catch (...) {
        thrown = std::current_exception();
    }
    // What the task owns goes before anybody hears that it is done.
    meeting.task = nullptr;
    meeting.thrown = thrown;
    BorrowAllocationFault(nullptr);
}

void TellThatItIsDone(Meeting& meeting) {
    const std::lock_guard lock(meeting.mutex);
    meeting.done = true;
    meeting.over.notify_one();
    if (!meeting.abandoned) return;
    Abandoned& all = AllAbandoned();
    const std::lock_guard count_lock(all.mutex);
    --all.count;
    all.fewer.notify_all();
}

// A thread for one task after the other: starting one takes as long as reading a small picture.
class Helper {
  public:
    Helper() {
        std::thread([this] { Work(); }).detach();
    }
    void Begin(std::shared_ptr<Meeting> meeting) {
        const std::lock_guard lock(mutex_);
        meeting_ = std::move(meeting);
        begun_.notify_one();
    }

  private:
    void Work();
    void BecomeIdle();

    std::mutex mutex_;
    std::condition_variable begun_;
    std::shared_ptr<Meeting> meeting_;  // guarded by the mutex; null: nothing to do
};

// Those that have nothing to do.
struct Helpers {
    std::mutex mutex;
    std::vector<Helper*> idle;
};

// Never destroyed, like its threads: they wait until the process ends.
Helpers& AllHelpers() {
    static auto* helpers = new Helpers;
    return *helpers;
}

void Helper::Work() {
    for (;;) {
        std::unique_lock lock(mutex_);
        begun_.wait(lock, [this] { return meeting_ != nullptr; });
        const std::shared_ptr<Meeting> meeting = std::move(meeting_);
        lock.unlock();
        RunTask(*meeting);
        BecomeIdle();
        TellThatItIsDone(*meeting);
    }
}

void Helper::BecomeIdle() {
    Helpers& all = AllHelpers();
    const std::lock_guard lock(all.mutex);
    all.idle.push_back(this);
}

Helper& TakeHelper() {
    Helpers& all = AllHelpers();
    const std::lock_guard lock(all.mutex);
    if (all.idle.empty()) return *new Helper;
    Helper* helper = all.idle.back();
    all.idle.pop_back();
    return *helper;
}

// True when the task was done before it was given up.
bool WaitFor(Meeting& meeting, const std::function<bool()>& given_up) {
    std::unique_lock lock(meeting.mutex);
    while (!meeting.over.wait_for(lock, kLook, [&] { return meeting.done; })) {
        if (!given_up()) continue;
        meeting.abandoned = true;
        Abandoned& all = AllAbandoned();
        const std::lock_guard count_lock(all.mutex);
        ++all.count;
        return false;
    }
    return true;
}

}  // namespace

bool FinishOrAbandon(Work& work, std::function<void()> task) {
    const std::function<bool()> given_up = [&work] {
        work.ReportAgain();
        return work.StopRequested();
    };
    return FinishOrAbandon(given_up, std::move(task));
}

bool FinishOrAbandon(const std::function<bool()>& given_up, std::function<void()> task) {
    const auto meeting = std::make_shared<Meeting>();
    meeting->task = std::move(task);
    meeting->fault = LentAllocationFault();
    TakeHelper().Begin(meeting);
    if (!WaitFor(*meeting, given_up)) return false;
    if (meeting->thrown) std::rethrow_exception(meeting->thrown);
    return true;
}

bool WaitForAbandoned(std::chrono::milliseconds longest) {
    Abandoned& all = AllAbandoned();
    std::unique_lock lock(all.mutex);
    return all.fewer.wait_for(lock, longest, [&] { return all.count == 0; });
}

int ExitStatus(int status) {
    if (WaitForAbandoned(std::chrono::seconds(1))) return status;
    std::fflush(nullptr);
    std::_Exit(status);
}

}  // namespace kirto
