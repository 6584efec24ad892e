#include "platform/qt/gui_port.h"

#include <QCoreApplication>
#include <QEvent>
#include <algorithm>

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
        queue_.clear();
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
        std::erase_if(queue_, [&](const BMessage& queued) { return queued.what == message.what; });
    }
    queue_.push_back(std::move(message));
    if (!wake_posted_) {
        wake_posted_ = true;
        QCoreApplication::postEvent(waker_.get(), new QEvent(QEvent::User));
    }
    return B_OK;
}

void GuiPort::Wake() {
    bool only_refreshes = false;
    {
        const std::lock_guard lock(mutex_);
        wake_posted_ = false;
        only_refreshes = std::all_of(queue_.begin(), queue_.end(), [this](const BMessage& queued) {
            return IsRefresh(queued.what);
        });
    }
    const qint64 elapsed = since_delivery_.isValid() ? since_delivery_.elapsed() : 1000;
    if (only_refreshes && elapsed < kDisplayFrameMilliseconds) {
        frame_timer_.start(static_cast<int>(kDisplayFrameMilliseconds - elapsed));
        return;
    }
    DeliverAll();
}

bool GuiPort::TakeNext(BMessage* message) {
    const std::lock_guard lock(mutex_);
    if (queue_.empty()) return false;
    *message = std::move(queue_.front());
    queue_.pop_front();
    return true;
}

void GuiPort::DeliverAll() {
    // The receiver may close the port, or drop the last reference to it.
    const std::shared_ptr<GuiPort> self = shared_from_this();
    // What comes in meanwhile waits for its own turn, or a busy sender would keep the thread here.
    size_t waiting = 0;
    {
        const std::lock_guard lock(mutex_);
        waiting = queue_.size();
    }
    BMessage message;
    while (waiting-- > 0 && TakeNext(&message)) {
        receiver_(&message);
    }
    since_delivery_.start();
}

}  // namespace kirto
