#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <condition_variable>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "document/document_state.h"
#include "picture/picture.h"

namespace kirto {

// Images of frames as they are painted, made by threads of their own before they are needed, and
// kept in bounded memory. GUI thread; nothing here waits for the threads but the destructor.
class FrameImages : public QObject {
  public:
    // What is kept, in bytes. What is wanted now may take more, if it is large.
    static constexpr qsizetype kMaxBytes = qsizetype{192} << 20;
    static constexpr size_t kMaxImages = 512;

    // The image of a frame's picture in its own size, or smoothly scaled down.
    struct Wanted {
        std::shared_ptr<const Picture> picture;
        QSize size;  // pixels to be scaled to; invalid for as many as there are
        // Instead of the picture: what a save makes of it. Null for the picture itself.
        std::shared_ptr<const DocumentState> saved = nullptr;
        int32 position = 0;  // of the frame in that

        bool operator==(const Wanted&) const = default;
    };

    // ready: called when images have been made that were wanted.
    explicit FrameImages(std::function<void()> ready);
    ~FrameImages() override;

    // What is wanted from now on, the most urgent first. What was wanted before and is not begun
    // yet is not made any more.
    void Want(std::vector<Wanted> wanted);
    // The image if it is there; else null. Null also for one that can't be made: then made is true.
    QImage Find(const Wanted& wanted, bool* made = nullptr);
    // So many images of that size may be wanted at once without others having to go.
    static int32 RoomFor(QSize size);

  private:
    using Lock = std::unique_lock<std::mutex>;
    // Keeps neither pictures nor documents alive.
    struct Entry {
        std::weak_ptr<const Picture> picture;
        QSize size;
        bool is_saved;
        std::weak_ptr<const DocumentState> saved;
        int32 position;
        QImage image;

        bool IsOf(const Wanted& wanted) const;
    };

    static QImage Make(const Wanted& wanted);
    void Work();
    bool IsThere(const Wanted& wanted) const;
    void Keep(const Wanted& wanted, QImage image);
    void StartThreads();

    const std::function<void()> ready_;
    std::mutex mutex_;
    std::condition_variable wake_;
    std::vector<Wanted> queue_;   // all guarded by the mutex; the most urgent first
    std::vector<Wanted> making_;  // by the threads, now
    std::list<Entry> entries_;    // the last used first
    qsizetype bytes_ = 0;
    bool told_ = false;  // that images are ready, and the GUI thread has not looked yet
    bool ending_ = false;
    std::vector<std::thread> threads_;  // from the first wish on
};

}  // namespace kirto
