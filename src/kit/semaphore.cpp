#include "kit/semaphore.h"

#include <chrono>
#include <condition_variable>
#include <limits>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "base/allocation.h"

namespace {

// What the users of one semaphore share. Waiters keep it alive past its deletion.
struct Semaphore {
    std::mutex mutex;
    std::condition_variable changed;
    int32 count = 0;
    bool deleted = false;
    std::string name;
};

// All semaphores of the process. Ids count up and wrap only after the last positive number, so a
// stale id does not soon name another semaphore.
class SemaphoreTable {
  public:
    sem_id Insert(std::shared_ptr<Semaphore> semaphore) {
        const std::lock_guard lock(mutex_);
        while (!semaphores_.try_emplace(next_id_, semaphore).second)
            Advance();
        const sem_id id = next_id_;
        Advance();
        return id;
    }

    // Null when there is no such semaphore.
    std::shared_ptr<Semaphore> Find(sem_id id) {
        const std::lock_guard lock(mutex_);
        const auto found = semaphores_.find(id);
        return found == semaphores_.end() ? nullptr : found->second;
    }

    std::shared_ptr<Semaphore> Remove(sem_id id) {
        const std::lock_guard lock(mutex_);
        auto node = semaphores_.extract(id);
        return node.empty() ? nullptr : std::move(node.mapped());
    }

  private:
    void Advance() { next_id_ = next_id_ == std::numeric_limits<sem_id>::max() ? 1 : next_id_ + 1; }

    std::mutex mutex_;
    std::map<sem_id, std::shared_ptr<Semaphore>> semaphores_;
    sem_id next_id_ = 1;
};

// Never destroyed: objects with static storage may delete their semaphores at exit.
SemaphoreTable& Table() {
    static SemaphoreTable& table = *new SemaphoreTable;
    return table;
}

}  // namespace

sem_id create_sem(int32 count, const char* name) {
    if (count < 0) return B_BAD_VALUE;
    if (kirto::AllocationShouldFail()) return B_NO_MEMORY;
    auto semaphore = std::make_shared<Semaphore>();
    semaphore->count = count;
    if (name) semaphore->name = name;
    return Table().Insert(std::move(semaphore));
}

status_t delete_sem(sem_id id) {
    const std::shared_ptr<Semaphore> semaphore = Table().Remove(id);
    if (!semaphore) return B_BAD_SEM_ID;
    const std::lock_guard lock(semaphore->mutex);
    semaphore->deleted = true;
    semaphore->changed.notify_all();
    return B_OK;
}

status_t acquire_sem(sem_id id) {
    const std::shared_ptr<Semaphore> semaphore = Table().Find(id);
    if (!semaphore) return B_BAD_SEM_ID;
    std::unique_lock lock(semaphore->mutex);
    semaphore->changed.wait(lock, [&] { return semaphore->deleted || semaphore->count > 0; });
    if (semaphore->deleted) return B_BAD_SEM_ID;
    --semaphore->count;
    return B_OK;
}

status_t try_acquire_sem(sem_id id) {
    const std::shared_ptr<Semaphore> semaphore = Table().Find(id);
    if (!semaphore) return B_BAD_SEM_ID;
    const std::lock_guard lock(semaphore->mutex);
    if (semaphore->deleted) return B_BAD_SEM_ID;
    if (semaphore->count == 0) return B_WOULD_BLOCK;
    --semaphore->count;
    return B_OK;
}

status_t release_sem(sem_id id) {
    const std::shared_ptr<Semaphore> semaphore = Table().Find(id);
    if (!semaphore) return B_BAD_SEM_ID;
    const std::lock_guard lock(semaphore->mutex);
    if (semaphore->deleted) return B_BAD_SEM_ID;
    if (semaphore->count == std::numeric_limits<int32>::max()) return B_BAD_VALUE;
    ++semaphore->count;
    semaphore->changed.notify_one();
    return B_OK;
}

status_t snooze(bigtime_t microseconds) {
    if (microseconds > 0) std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
    return B_OK;
}
