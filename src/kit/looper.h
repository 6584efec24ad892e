#pragma once

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "kit/handler.h"
#include "kit/message.h"
#include "kit/messenger.h"

namespace kirto {
class MessageQueue;
}

// A thread with a queue of messages, which it handles one by one in the order posted. When a
// handler runs out of memory, the looper warns the user and goes on with the next message. Posting
// is thread-safe; call AddHandler and RemoveHandler on the looper's own thread or while the loop
// does not run. Must be destroyed by another thread.
class BLooper : public BHandler {
  public:
    explicit BLooper(std::string name = {});
    // Ends the loop and waits for its thread; the handlers, which are not owned, are on their own
    // again. A class whose MessageReceived uses its own members calls Quit() in its own destructor
    // first.
    ~BLooper() override;

    // Starts the looper's thread. Once only.
    void Run();
    // Runs the loop on the calling thread until it ends. Once only, instead of Run().
    void Loop();
    // Ends the loop after the message in hand; messages still queued are dropped. Called from
    // another thread it waits until the loop has ended.
    void Quit();

    // To the looper itself. Queued before Run() too; B_NOT_ALLOWED after Quit().
    status_t PostMessage(const BMessage& message) const;
    status_t PostMessage(uint32 what) const { return PostMessage(BMessage(what)); }
    // To one of the looper's handlers; dropped when the handler is in the looper no longer by the
    // time the message's turn comes.
    status_t PostMessage(const BMessage& message, const BHandler& handler) const;

    // Does nothing with a handler that is in a looper already, as every looper is in itself.
    void AddHandler(BHandler* handler);
    // Does nothing with a handler of another looper.
    void RemoveHandler(BHandler* handler);

    // Asked when B_QUIT_REQUESTED arrives for the looper itself; true ends the loop.
    virtual bool QuitRequested() { return true; }

    bool IsOnLooperThread() const;
    std::shared_ptr<kirto::MessagePort> Port() const;

  protected:
    // Hands one message to its handler; the place for a subclass to step in front of all handling.
    virtual void DispatchMessage(BMessage* message, BHandler* handler);

  private:
    enum class State { kNew, kRunning, kEnded };

    // True for the first caller only.
    bool Start();
    void HandleMessages();
    // Null for the token of no handler here.
    BHandler* HandlerFor(kirto::handler_token token);

    std::shared_ptr<kirto::MessageQueue> queue_;
    std::vector<BHandler*> handlers_;
    std::mutex state_mutex_;
    std::condition_variable ended_;
    State state_ = State::kNew;                 // guarded by state_mutex_
    std::atomic<std::thread::id> loop_thread_;  // no thread's id while the loop does not run
    std::thread thread_;
};
