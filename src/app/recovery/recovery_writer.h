#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "app/recovery/recovery_schedule.h"
#include "base/types.h"
#include "document/document_state.h"

namespace kirto {

// Where copies of the open document go, one in place of the other. Called on one thread at a time.
class RecoveryTarget {
  public:
    virtual ~RecoveryTarget() = default;
    // B_OK, or why nothing is written; the copy before it stays then.
    virtual status_t Write(const DocumentState& state) = 0;
    virtual void Remove() = 0;
};

// Keeps the copy of the open document up to date, on a thread of its own. Thread-safe.
class RecoveryWriter {
  public:
    static constexpr std::chrono::seconds kDelay{20};

    // The target must outlive the writer. delay: as RecoverySchedule has it.
    explicit RecoveryWriter(RecoveryTarget& target, RecoverySchedule::Delay delay = kDelay);
    // Waits for a write that is being made; begins none.
    ~RecoveryWriter();
    RecoveryWriter(const RecoveryWriter&) = delete;
    RecoveryWriter& operator=(const RecoveryWriter&) = delete;

    // Hands over the document as it is now (never null) and returns at once. What differs from the
    // state before in nothing that a copy holds is no change. A document that is not modified has
    // no copy: the one there is goes at once. After a failed write, the next change is the next
    // try.
    void Update(std::shared_ptr<const DocumentState> state);
    // Writes what is not written yet, and returns when that is done or has failed: B_OK, or why.
    status_t WriteNow();

  private:
    using Lock = std::unique_lock<std::mutex>;

    void Work();
    bool IsDue() const;
    void RemoveCopy(Lock& lock);
    void WriteCopy(Lock& lock);
    void Wait(Lock& lock);

    RecoveryTarget& target_;
    std::mutex mutex_;
    std::condition_variable wake_;     // the thread: there may be something to do
    std::condition_variable written_;  // callers of WriteNow: nothing is urgent any more
    RecoverySchedule schedule_;
    std::shared_ptr<const DocumentState> newest_;
    bool unwritten_ = false;  // newest_ is to be written
    bool failed_ = false;     // newest_ could not be written
    bool remove_ = false;     // the copy is to be removed
    bool urgent_ = false;     // somebody waits for the write
    bool stopping_ = false;
    status_t status_ = B_OK;  // of the last write
    std::thread thread_;      // last: it uses what stands above
};

}  // namespace kirto
