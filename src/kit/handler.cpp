#include "kit/handler.h"

#include <atomic>
#include <utility>

#include "kit/looper.h"

namespace {

kirto::handler_token NextToken() {
    static std::atomic<kirto::handler_token> last = kirto::kPreferredHandler;
    return ++last;
}

}  // namespace

BHandler::BHandler(std::string name) : name_(std::move(name)), token_(NextToken()) {}

BHandler::~BHandler() {
    if (looper_) looper_->RemoveHandler(this);
}

void BHandler::MessageReceived(BMessage*) {}
