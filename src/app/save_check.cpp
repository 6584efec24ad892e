#include "app/save_check.h"

#include <new>
#include <system_error>
#include <utility>

#include "app/save_verification.h"

namespace kirto {

SaveCheck::~SaveCheck() {
    {
        const Lock lock(mutex_);
        StopLocked();
        ending_ = true;
    }
    wake_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void SaveCheck::Start(Save save) {
    std::shared_ptr<const Finding> forgotten;  // goes when nobody is locked out
    {
        const Lock lock(mutex_);
        StopLocked();
        forgotten.swap(last_);
        next_ = std::move(save);
        try {
            if (!thread_.joinable()) thread_ = std::thread([this] { Work(); });
        } catch (const std::system_error&) {
            next_.reset();
        }
    }
    wake_.notify_one();
}

void SaveCheck::Stop() {
    const Lock lock(mutex_);
    StopLocked();
}

void SaveCheck::Forget() {
    std::shared_ptr<const Finding> forgotten;
    const Lock lock(mutex_);
    StopLocked();
    forgotten.swap(last_);
}

std::shared_ptr<const SaveCheck::Finding> SaveCheck::Last() const {
    const Lock lock(mutex_);
    return last_;
}

void SaveCheck::StopLocked() {
    next_.reset();
    if (running_) running_->RequestStop();
    running_.reset();
}

void SaveCheck::Work() {
    Lock lock(mutex_);
    while (!ending_) {
        if (next_) {
            CheckNext(lock);
        } else {
            wake_.wait(lock);
        }
    }
}

// Whatever is large is made and goes when nobody is locked out.
void SaveCheck::CheckNext(Lock& lock) {
    std::optional<Save> save = std::exchange(next_, std::nullopt);
    std::shared_ptr<SaveVerification> verification;
    std::shared_ptr<const Finding> finding;
    try {
        verification = std::make_shared<SaveVerification>(save->memory_limit);
        running_ = verification;
        lock.unlock();
        finding = Compare(*save, *verification);
    } catch (const std::bad_alloc&) {
        finding.reset();
    }
    if (!lock.owns_lock()) lock.lock();
    const bool is_wanted = running_ == verification;
    if (is_wanted) running_.reset();
    const bool found = is_wanted && finding;
    if (found) last_ = finding;
    lock.unlock();
    if (found) found_();
    finding.reset();
    verification.reset();
    save.reset();
    lock.lock();
}

// Null where nothing differs, and where that can't be told.
std::shared_ptr<const SaveCheck::Finding> SaveCheck::Compare(const Save& save,
                                                             SaveVerification& verification) const {
    const SaveVerification::Result result =
        verification.Run(save.path, *save.animation, save.options);
    if (result != SaveVerification::Result::kDifferent) return nullptr;
    return std::make_shared<const Finding>(
        Finding{save.path, save.animation, verification.Read(), verification.Differences()});
}

}  // namespace kirto
