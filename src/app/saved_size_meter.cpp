#include "app/saved_size_meter.h"

#include <new>
#include <sys/resource.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace kirto {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int32 kFewestRuns = 2;
constexpr int kNiceness = 10;

// This thread, and those that it starts, have what others leave.
void YieldToOthers() {
    setpriority(PRIO_PROCESS, static_cast<id_t>(gettid()), kNiceness);
}

}  // namespace

SavedSizeMeter::~SavedSizeMeter() {
    {
        const Lock lock(mutex_);
        StopLocked();
        ending_ = true;
    }
    wake_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void SavedSizeMeter::Measure(std::shared_ptr<const DocumentState> state) {
    std::shared_ptr<const DocumentState> forgotten;  // goes when nobody is locked out
    {
        const Lock lock(mutex_);
        const bool same = measured_ && SavedSize::IsSame(*measured_, *state);
        forgotten = std::exchange(measured_, std::move(state));
        if (same) return;
        StopLocked();
        last_.reset();
        waiting_ = true;
        due_ = Clock::now() + kDelay;
        try {
            if (!thread_.joinable()) thread_ = std::thread([this] { Work(); });
        } catch (const std::system_error&) {
            waiting_ = false;
        }
    }
    wake_.notify_one();
}

std::optional<SavedSizeMeter::Size> SavedSizeMeter::Last() const {
    const Lock lock(mutex_);
    return last_;
}

void SavedSizeMeter::StopLocked() {
    waiting_ = false;
    if (running_) running_->RequestStop();
    running_.reset();
}

void SavedSizeMeter::Work() {
    YieldToOthers();
    Lock lock(mutex_);
    while (!ending_) {
        if (!waiting_) {
            wake_.wait(lock);
        } else if (Clock::now() < due_) {
            wake_.wait_until(lock, due_);
        } else {
            MeasureNext(lock);
        }
    }
}

// Whatever is large is made and goes when nobody is locked out.
void SavedSizeMeter::MeasureNext(Lock& lock) {
    waiting_ = false;
    std::shared_ptr<SavedSize> size;
    try {
        size = std::make_shared<SavedSize>(*measured_);
    } catch (const std::bad_alloc&) {
        return;
    }
    running_ = size;
    lock.unlock();
    const Clock::time_point end = Clock::now() + kSampleTime;
    const auto about =
        size->Estimate([end](int32 runs) { return runs >= kFewestRuns && Clock::now() >= end; });
    if (Tell(size, about, false)) Tell(size, size->Exact(), true);
    size.reset();
    lock.lock();
}

// False when nobody wants to know any more, or when there would be no file.
bool SavedSizeMeter::Tell(const std::shared_ptr<SavedSize>& from, std::optional<int64> bytes,
                          bool is_exact) {
    {
        const Lock lock(mutex_);
        if (running_ != from) return false;
        if (is_exact || !bytes) running_.reset();
        last_.reset();
        if (bytes) last_ = Size{*bytes, is_exact};
    }
    changed_();
    return bytes.has_value();
}

}  // namespace kirto
