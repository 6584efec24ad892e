#include "base/abandonable.h"

#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <memory>
#include <mutex>
#include <thread>

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
    bool done = false;
    bool abandoned = false;
    std::exception_ptr thrown;
};

void RunTask(Meeting& meeting, std::function<void()>& task) {
    std::exception_ptr thrown;
    try {
        task();
    } catch (...) {
        thrown = std::current_exception();
    }
    // What the task owns goes before anybody hears that it is done.
    task = nullptr;
    const std::lock_guard lock(meeting.mutex);
    meeting.done = true;
    meeting.thrown = thrown;
    meeting.over.notify_one();
    if (!meeting.abandoned) return;
    Abandoned& all = AllAbandoned();
    const std::lock_guard count_lock(all.mutex);
    --all.count;
    all.fewer.notify_all();
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
    std::thread thread([meeting, task = std::move(task), fault = LentAllocationFault()]() mutable {
        BorrowAllocationFault(std::move(fault));
        RunTask(*meeting, task);
    });
    if (!WaitFor(*meeting, given_up)) {
        thread.detach();
        return false;
    }
    thread.join();
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
