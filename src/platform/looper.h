#pragma once

#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "platform/handler.h"
#include "platform/message.h"
#include "platform/messenger.h"

namespace kirto {
class MessageQueue;
}

// A thread with a queue: messages are handled one after the other, in the order posted. Posting is
// safe from any thread; AddHandler and RemoveHandler belong to the looper's own thread or to the
// time before Run().
class BLooper : public BHandler {
  public:
    explicit BLooper(std::string name = {});
    // Ends the loop and waits for its thread. A class whose MessageReceived uses its own members
    // calls Quit() in its own destructor first.
    ~BLooper() override;

    // Starts the looper's thread. Once only.
    void Run();
    // Runs the loop on the calling thread until it ends. Once only, instead of Run().
    void Loop();
    // Ends the loop after the message in hand; messages still queued are dropped. Called from
    // another thread it waits until the loop has ended.
    void Quit();

    status_t PostMessage(const BMessage& message) const;
    status_t PostMessage(uint32 what) const { return PostMessage(BMessage(what)); }
    // To one of the looper's handlers.
    status_t PostMessage(const BMessage& message, const BHandler& handler) const;

    void AddHandler(BHandler* handler);
    void RemoveHandler(BHandler* handler);

    // Asked when B_QUIT_REQUESTED arrives; true ends the loop.
    virtual bool QuitRequested() { return true; }

    bool IsOnLooperThread() const;
    std::shared_ptr<kirto::MessagePort> Port() const;

  protected:
    // Hands one message to its handler; the place for a subclass to step in front of all handling.
    virtual void DispatchMessage(BMessage* message, BHandler* handler);

  private:
    BHandler* HandlerFor(kirto::handler_token token);

    std::shared_ptr<kirto::MessageQueue> queue_;
    std::vector<BHandler*> handlers_;
    std::thread thread_;
};
