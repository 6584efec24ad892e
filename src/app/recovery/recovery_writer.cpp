#include "app/recovery/recovery_writer.h"

#include "base/debug_line.h"

namespace kirto {

namespace {

// True when copies of both are the same but for the time.
bool MakeTheSameCopy(const DocumentState& a, const DocumentState& b) {
    return a.animation == b.animation && a.modified == b.modified && a.file_name == b.file_name &&
           a.file_directory == b.file_directory;
}

}  // namespace

RecoveryWriter::RecoveryWriter(RecoveryTarget& target, RecoverySchedule::Delay delay)
    : target_(target), schedule_(delay), thread_([this] { Work(); }) {}

RecoveryWriter::~RecoveryWriter() {
    {
        const Lock lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_one();
    thread_.join();
}

void RecoveryWriter::Update(std::shared_ptr<const DocumentState> state) {
    {
        const Lock lock(mutex_);
        newest_.swap(state);  // what was handed over before goes when nobody is locked out
        if (state && MakeTheSameCopy(*newest_, *state)) return;
        failed_ = false;
        unwritten_ = newest_->modified;
        if (unwritten_) {
            schedule_.Changed(std::chrono::steady_clock::now());
        } else {
            remove_ = remove_ || (state && state->modified);
            schedule_.Clear();
            status_ = B_OK;
        }
    }
    wake_.notify_one();
}

status_t RecoveryWriter::WriteNow() {
    Lock lock(mutex_);
    if (failed_) unwritten_ = true;
    failed_ = false;
    if (unwritten_) status_ = B_OK;
    urgent_ = true;
    wake_.notify_one();
    written_.wait(lock, [this] { return !urgent_; });
    return status_;
}

void RecoveryWriter::Work() {
    Lock lock(mutex_);
    while (!stopping_) {
        if (remove_) {
            RemoveCopy(lock);
        } else if (IsDue()) {
            WriteCopy(lock);
        } else if (urgent_) {
            urgent_ = false;
            written_.notify_all();
        } else {
            Wait(lock);
        }
    }
}

bool RecoveryWriter::IsDue() const {
    if (!unwritten_) return false;
    const auto due = schedule_.Due();
    return urgent_ || (due && *due <= std::chrono::steady_clock::now());
}

void RecoveryWriter::RemoveCopy(Lock& lock) {
    remove_ = false;
    status_ = B_OK;
    lock.unlock();
    target_.Remove();
    lock.lock();
}

void RecoveryWriter::WriteCopy(Lock& lock) {
    std::shared_ptr<const DocumentState> state = newest_;
    unwritten_ = false;
    schedule_.Clear();
    lock.unlock();
    const status_t status = target_.Write(*state);
    if (status != B_OK) {
        DebugLine("RecoveryWriter::WriteCopy() - The copy can't be written (%s)\n",
                  StatusText(status).c_str());
    }
    state.reset();
    lock.lock();
    status_ = status;
    failed_ = status != B_OK && !unwritten_ && newest_->modified;
}

void RecoveryWriter::Wait(Lock& lock) {
    const auto due = unwritten_ ? schedule_.Due() : std::nullopt;
    if (due) {
        wake_.wait_until(lock, *due);
    } else {
        wake_.wait(lock);
    }
}

}  // namespace kirto
