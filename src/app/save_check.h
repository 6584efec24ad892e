#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "animation/animation.h"
#include "animation/save_comparison.h"
#include "base/types.h"

namespace kirto {

class SaveVerification;

// Compares what was saved with what the editor shows, one save after the other, on a thread of its
// own: nobody waits for it. Thread-safe.
class SaveCheck {
  public:
    // A save to be compared.
    struct Save {
        std::string path;
        std::shared_ptr<const Animation> animation;  // that was written
        SaveComparison::Options options;
        uint64 memory_limit = 0;  // bytes that what is read may take
    };
    // A save that shows something else; never changes.
    struct Finding {
        std::string path;
        std::shared_ptr<const Animation> saved;
        std::shared_ptr<const Animation> read;
        SaveDifferences differences;
    };

    // found: called on that thread when there is a new finding.
    explicit SaveCheck(std::function<void()> found) : found_(std::move(found)) {}
    // Ends what is under way.
    ~SaveCheck();
    SaveCheck(const SaveCheck&) = delete;
    SaveCheck& operator=(const SaveCheck&) = delete;

    // Begins to compare, in place of what is under way, and forgets the last finding. Without
    // memory for a thread nothing is compared.
    void Start(Save save);
    // Ends what is under way: nothing will be found in it. Returns at once.
    void Stop();
    // The same, and forgets the last finding.
    void Forget();
    // Null when nothing was found since the last save.
    std::shared_ptr<const Finding> Last() const;

  private:
    using Lock = std::unique_lock<std::mutex>;

    void StopLocked();
    void Work();
    void CheckNext(Lock& lock);
    std::shared_ptr<const Finding> Compare(const Save& save, SaveVerification& verification) const;

    const std::function<void()> found_;
    mutable std::mutex mutex_;
    std::condition_variable wake_;
    std::optional<Save> next_;                   // all guarded by the mutex
    std::shared_ptr<SaveVerification> running_;  // null: nothing is under way, or it is to end
    std::shared_ptr<const Finding> last_;
    bool ending_ = false;
    std::thread thread_;  // from the first save on
};

}  // namespace kirto
