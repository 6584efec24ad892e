#include "ui/controls/frame_images.h"

#include <QPainter>
#include <algorithm>
#include <new>
#include <system_error>

#include "app/saved_picture.h"
#include "base/thread_count.h"
#include "ui/controls/image_of.h"

namespace kirto {

namespace {

constexpr int32 kWorkers = 2;
constexpr qsizetype kBytesPerPixel = 4;

// Down to half the size the four pixels about each place have it all; that takes a third of the
// time that counting every pixel does.
QImage Smaller(const QImage& image, QSize size) {
    const bool to_half = size.width() * 2 >= image.width() && size.height() * 2 >= image.height();
    if (!to_half) return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage smaller(size, image.format());
    QPainter painter(&smaller);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QRect(QPoint(), size), image);
    return smaller;
}

}  // namespace

FrameImages::FrameImages(std::function<void()> ready) : ready_(std::move(ready)) {}

FrameImages::~FrameImages() {
    {
        const Lock lock(mutex_);
        ending_ = true;
        queue_.clear();
    }
    wake_.notify_all();
    for (std::thread& thread : threads_)
        thread.join();
}

int32 FrameImages::RoomFor(QSize size) {
    constexpr int32 kFewest = 3;
    constexpr int32 kMost = 32;
    const qsizetype bytes = qsizetype{size.width()} * size.height() * kBytesPerPixel;
    const qsizetype count = kMaxBytes / std::max(bytes, qsizetype{1});
    return std::clamp(static_cast<int32>(std::min(count, qsizetype{kMost})), kFewest, kMost);
}

// A player without a thread for its pictures shows none, and nothing else goes wrong.
void FrameImages::StartThreads() {
    if (!threads_.empty()) return;
    const int32 count = std::clamp(ThreadCount(), 1, kWorkers);
    try {
        for (int32 i = 0; i < count; ++i)
            threads_.emplace_back([this] { Work(); });
    } catch (const std::system_error&) {
    }
}

bool FrameImages::IsThere(const Wanted& wanted) const {
    return std::any_of(entries_.begin(), entries_.end(),
                       [&](const Entry& entry) { return entry.IsOf(wanted); });
}

void FrameImages::Want(std::vector<Wanted> wanted) {
    {
        const Lock lock(mutex_);
        std::erase_if(wanted, [this](const Wanted& each) {
            return IsThere(each) ||
                   std::find(making_.begin(), making_.end(), each) != making_.end();
        });
        queue_ = std::move(wanted);
        if (queue_.empty()) return;
    }
    StartThreads();
    wake_.notify_all();
}

QImage FrameImages::Find(const Wanted& wanted, bool* made) {
    const Lock lock(mutex_);
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.IsOf(wanted); });
    if (made) *made = found != entries_.end();
    if (found == entries_.end()) return {};
    entries_.splice(entries_.begin(), entries_, found);
    return found->image;
}

// Another picture may later have the place in memory of one that is gone.
bool FrameImages::Entry::IsOf(const Wanted& wanted) const {
    return picture.lock() == wanted.picture && size == wanted.size &&
           is_saved == (wanted.saved != nullptr) && saved.lock() == wanted.saved &&
           position == wanted.position;
}

void FrameImages::Keep(const Wanted& wanted, QImage image) {
    bytes_ += image.sizeInBytes();
    const auto fewest = static_cast<size_t>(RoomFor(image.size()));
    entries_.push_front({wanted.picture, wanted.size, wanted.saved != nullptr, wanted.saved,
                         wanted.position, std::move(image)});
    while (entries_.size() > kMaxImages || (bytes_ > kMaxBytes && entries_.size() > fewest)) {
        bytes_ -= entries_.back().image.sizeInBytes();
        entries_.pop_back();
    }
}

// Premultiplied where there is alpha, as that is painted fastest, and as the colors below
// transparent pixels must not bleed into their neighbors when it is scaled.
QImage FrameImages::Make(const Wanted& wanted) {
    try {
        const std::shared_ptr<const Picture> picture =
            wanted.saved ? SavedPicture(*wanted.saved, wanted.position) : wanted.picture;
        QImage image = ImageOf(picture, wanted.size);
        if (image.hasAlphaChannel()) image.convertTo(QImage::Format_ARGB32_Premultiplied);
        if (wanted.size.isValid() && !image.isNull() && image.size() != wanted.size)
            return Smaller(image, wanted.size);
        return image;
    } catch (const std::bad_alloc&) {
        return {};
    }
}

void FrameImages::Work() {
    Lock lock(mutex_);
    while (true) {
        wake_.wait(lock, [this] { return ending_ || !queue_.empty(); });
        if (ending_) return;
        const Wanted wanted = std::move(queue_.front());
        queue_.erase(queue_.begin());
        making_.push_back(wanted);
        lock.unlock();
        QImage image = Make(wanted);
        lock.lock();
        std::erase(making_, wanted);
        Keep(wanted, std::move(image));
        if (ending_ || std::exchange(told_, true)) continue;
        QMetaObject::invokeMethod(
            this,
            [this] {
                {
                    const Lock looking(mutex_);
                    told_ = false;
                }
                ready_();
            },
            Qt::QueuedConnection);
    }
}

}  // namespace kirto
