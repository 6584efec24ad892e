#include "kit/looper.h"

#include <algorithm>
#include <new>
#include <utility>

#include "kit/alert.h"
#include "kit/message_queue.h"

BLooper::BLooper(std::string name)
    : BHandler(std::move(name)), queue_(std::make_shared<kirto::MessageQueue>()) {
    looper_ = this;
}

BLooper::~BLooper() {
    Quit();
    if (thread_.joinable()) thread_.join();
    for (BHandler* handler : handlers_)
        handler->looper_ = nullptr;
    looper_ = nullptr;
}

void BLooper::Run() {
    if (Start()) thread_ = std::thread([this] { HandleMessages(); });
}

void BLooper::Loop() {
    if (Start()) HandleMessages();
}

bool BLooper::Start() {
    const std::lock_guard lock(state_mutex_);
    if (state_ != State::kNew) return false;
    state_ = State::kRunning;
    return true;
}

void BLooper::HandleMessages() {
    loop_thread_ = std::this_thread::get_id();
    for (kirto::Envelope envelope; queue_->Take(&envelope);) {
        BHandler* handler = HandlerFor(envelope.handler);
        if (!handler) continue;
        // Nothing else leaves a handler: all other failures are return values.
        try {
            DispatchMessage(&envelope.message, handler);
        } catch (const std::bad_alloc&) {
            kirto::WarnOutOfMemory();
        }
    }
    loop_thread_ = std::thread::id();
    const std::lock_guard lock(state_mutex_);
    state_ = State::kEnded;
    ended_.notify_all();
}

void BLooper::Quit() {
    queue_->Close();
    if (IsOnLooperThread()) return;
    std::unique_lock lock(state_mutex_);
    ended_.wait(lock, [this] { return state_ != State::kRunning; });
}

status_t BLooper::PostMessage(const BMessage& message) const {
    return queue_->PostCopy(message, kirto::kPreferredHandler);
}

status_t BLooper::PostMessage(const BMessage& message, const BHandler& handler) const {
    return queue_->PostCopy(message, handler.Token());
}

void BLooper::AddHandler(BHandler* handler) {
    if (handler->looper_) return;
    handler->looper_ = this;
    handlers_.push_back(handler);
}

void BLooper::RemoveHandler(BHandler* handler) {
    if (std::erase(handlers_, handler) > 0) handler->looper_ = nullptr;
}

bool BLooper::IsOnLooperThread() const {
    return loop_thread_ == std::this_thread::get_id();
}

std::shared_ptr<kirto::MessagePort> BLooper::Port() const {
    return queue_;
}

void BLooper::DispatchMessage(BMessage* message, BHandler* handler) {
    if (message->what == B_QUIT_REQUESTED && handler == this) {
        if (QuitRequested()) Quit();
    } else {
        handler->MessageReceived(message);
    }
}

BHandler* BLooper::HandlerFor(kirto::handler_token token) {
    if (token == kirto::kPreferredHandler || token == Token()) return this;
    const auto found = std::find_if(handlers_.begin(), handlers_.end(),
                                    [token](BHandler* each) { return each->Token() == token; });
    return found == handlers_.end() ? nullptr : *found;
}
