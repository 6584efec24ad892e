#pragma once

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/handler.h"
#include "platform/message.h"
#include "platform/messenger.h"

namespace kirto {
class MessageQueue;
}

// A thread with a queue: messages are handled one after the other, in the order posted. A handler
// that runs out of memory is a warning for the user, and the next message's turn. Posting is
// safe from any thread; AddHandler and RemoveHandler belong to the looper's own thread or to the
// time when the loop does not run. Destroyed by another thread than its own.
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
