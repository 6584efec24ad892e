#pragma once

#include <QObject>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace kirto {

// Does work on a thread of its own, of which the last piece alone is wanted: a new one stops the
// one before. The thread rests while there is none. GUI thread; nothing here waits but the
// destructor.
class LatestWork : public QObject {
  public:
    // Runs on the thread, and ends early once it is to stop. Returns what is called on the GUI
    // thread then, unless another piece has been asked for meanwhile.
    using Piece = std::function<std::function<void()>(const std::atomic<bool>& stop)>;

    LatestWork() = default;
    ~LatestWork() override;

    // Without memory for a thread nothing is done.
    void Do(Piece piece);
    // Ends what is under way; nothing comes of it.
    void Stop();

  private:
    using Lock = std::unique_lock<std::mutex>;
    using Flag = std::shared_ptr<std::atomic<bool>>;

    void Work();

    std::mutex mutex_;
    std::condition_variable wake_;
    Piece next_;  // all guarded by the mutex; empty for none
    Flag stop_;   // of the last piece; null for none
    bool ending_ = false;
    std::thread thread_;  // from the first piece on
};

}  // namespace kirto
