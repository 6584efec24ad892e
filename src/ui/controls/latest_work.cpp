#include "ui/controls/latest_work.h"

#include <system_error>
#include <utility>

namespace kirto {

LatestWork::~LatestWork() {
    Stop();
    {
        const Lock lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    if (thread_.joinable()) thread_.join();
}

void LatestWork::Do(Piece piece) {
    Stop();
    {
        const Lock lock(mutex_);
        next_ = std::move(piece);
        stop_ = std::make_shared<std::atomic<bool>>(false);
        try {
            if (!thread_.joinable()) thread_ = std::thread([this] { Work(); });
        } catch (const std::system_error&) {
            next_ = {};
        }
    }
    wake_.notify_one();
}

void LatestWork::Stop() {
    const Lock lock(mutex_);
    if (stop_) *stop_ = true;
    stop_.reset();
    next_ = {};
}

void LatestWork::Work() {
    Lock lock(mutex_);
    while (true) {
        wake_.wait(lock, [this] { return ending_ || next_; });
        if (ending_) return;
        const Flag stop = stop_;
        Piece piece = std::exchange(next_, {});
        lock.unlock();
        std::function<void()> done = piece(*stop);
        piece = {};
        if (done) {
            QMetaObject::invokeMethod(
                this,
                [stop, done = std::move(done)] {
                    if (!*stop) done();
                },
                Qt::QueuedConnection);
        }
        lock.lock();
    }
}

}  // namespace kirto
