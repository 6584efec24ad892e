#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "app/saved_size.h"
#include "base/types.h"
#include "document/document_state.h"

namespace kirto {

// Keeps measuring how large the document would be as a file, on a thread of its own that yields to
// all others: first about, then exactly. It rests while nothing changes. Thread-safe.
class SavedSizeMeter {
  public:
    struct Size {
        int64 bytes = 0;
        bool is_exact = false;

        bool operator==(const Size&) const = default;
    };
    // Edits in so quick a succession are measured once.
    static constexpr std::chrono::milliseconds kDelay{100};
    // A sample of the frames is encoded for about as long as that.
    static constexpr std::chrono::milliseconds kSampleTime{400};

    // changed: called on that thread when there is a new size.
    explicit SavedSizeMeter(std::function<void()> changed) : changed_(std::move(changed)) {}
    // Ends what is under way.
    ~SavedSizeMeter();
    SavedSizeMeter(const SavedSizeMeter&) = delete;
    SavedSizeMeter& operator=(const SavedSizeMeter&) = delete;

    // Measures that document, in place of the one before; goes on where the file would be the same.
    // Returns at once. Without memory for a thread nothing is measured.
    void Measure(std::shared_ptr<const DocumentState> state);
    // Empty as long as it is not known, and where there would be no file.
    std::optional<Size> Last() const;

  private:
    using Lock = std::unique_lock<std::mutex>;

    void StopLocked();
    void Work();
    void MeasureNext(Lock& lock);
    bool Tell(const std::shared_ptr<SavedSize>& from, std::optional<int64> bytes, bool is_exact);

    const std::function<void()> changed_;
    mutable std::mutex mutex_;
    std::condition_variable wake_;
    std::shared_ptr<const DocumentState> measured_;  // all guarded by the mutex; the last one
    bool waiting_ = false;                           // its measuring has not begun
    std::chrono::steady_clock::time_point due_;      // when it may
    std::shared_ptr<SavedSize> running_;             // null: nothing is under way, or it is to end
    std::optional<Size> last_;
    bool ending_ = false;
    std::thread thread_;  // from the first document on
};

}  // namespace kirto
