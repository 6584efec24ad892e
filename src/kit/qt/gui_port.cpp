#include "kit/qt/gui_port.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <new>
#include <utility>

#include "kit/alert.h"

namespace kirto {

namespace {

constexpr int kDisplayFrameMilliseconds = 16;

}  // namespace

// Receives the events that call the GUI thread.
class GuiPort::Waker : public QObject {
  public:
    explicit Waker(GuiPort& port) : port_(port) {}

  protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::User) return QObject::event(event);
        port_.Wake();
        return true;
    }

  private:
    GuiPort& port_;
};

std::shared_ptr<GuiPort> GuiPort::Create(Receiver receiver, std::vector<uint32> refresh_codes) {
    return std::shared_ptr<GuiPort>(new GuiPort(std::move(receiver), std::move(refresh_codes)));
}

GuiPort::GuiPort(Receiver receiver, std::vector<uint32> refresh_codes)
    : refresh_codes_(std::move(refresh_codes)),
      receiver_(std::move(receiver)),
      waker_(std::make_unique<Waker>(*this)) {
    frame_timer_.setSingleShot(true);
    QObject::connect(&frame_timer_, &QTimer::timeout, [this] { DeliverAll(); });
}

GuiPort::~GuiPort() = default;

void GuiPort::Close() {
    {
        const std::lock_guard lock(mutex_);
        open_ = false;
        commands_.clear();
        refreshes_.clear();
        waker_.reset();
    }
    frame_timer_.stop();
}

bool GuiPort::IsOpen() const {
    const std::lock_guard lock(mutex_);
    return open_;
}

bool GuiPort::IsRefresh(uint32 code) const {
    return std::find(refresh_codes_.begin(), refresh_codes_.end(), code) != refresh_codes_.end();
}

status_t GuiPort::Post(BMessage message, handler_token) {
    const std::lock_guard lock(mutex_);
    if (!open_) return B_NOT_ALLOWED;
    if (IsRefresh(message.what)) {
        std::erase_if(refreshes_,
                      [&](const BMessage& queued) { return queued.what == message.what; });
        refreshes_.push_back(std::move(message));
    } else {
        commands_.push_back(std::move(message));
    }
    CallGuiThread();
    return B_OK;
}

void GuiPort::CallGuiThread() {
    if (wake_posted_) return;
    wake_posted_ = true;
    QCoreApplication::postEvent(waker_.get(), new QEvent(QEvent::User));
}

void GuiPort::Wake() {
    bool commands_wait = false;
    bool refreshes_wait = false;
    {
        const std::lock_guard lock(mutex_);
        wake_posted_ = false;
        commands_wait = !delivering_ && !commands_.empty();
        refreshes_wait = !refreshes_.empty();
    }
    const qint64 elapsed =
        since_delivery_.isValid() ? since_delivery_.elapsed() : kDisplayFrameMilliseconds;
    if (commands_wait || (refreshes_wait && elapsed >= kDisplayFrameMilliseconds)) {
        DeliverAll();
    } else if (refreshes_wait) {
        frame_timer_.start(static_cast<int>(kDisplayFrameMilliseconds - elapsed));
    }
}

bool GuiPort::TakeNext(BMessage* message, size_t* refreshes_left) {
    const std::lock_guard lock(mutex_);
    const bool take_command = !delivering_ && !commands_.empty();
    if (!take_command && (refreshes_.empty() || (*refreshes_left)-- == 0)) return false;
    std::deque<BMessage>& queue = take_command ? commands_ : refreshes_;
    *message = std::move(queue.front());
    queue.pop_front();
    // An event loop of the receiver's own is to hear of what is left.
    if (!refreshes_.empty()) CallGuiThread();
    return true;
}

void GuiPort::DeliverAll() {
    // The receiver may close the port, or drop the last reference to it.
    const std::shared_ptr<GuiPort> self = shared_from_this();
    // Refreshes that come in meanwhile wait for their own turn, or a busy sender would keep the
    // thread here.
    size_t refreshes_left = 0;
    {
        const std::lock_guard lock(mutex_);
        refreshes_left = refreshes_.size();
    }
    BMessage message;
    while (TakeNext(&message, &refreshes_left)) {
        const bool outer = std::exchange(delivering_, true);
        // An exception must not pass through Qt's event loop.
        try {
            receiver_(&message);
        } catch (const std::bad_alloc&) {
            WarnOutOfMemory();
        }
        delivering_ = outer;
    }
    since_delivery_.start();
}

}  // namespace kirto
