#include "document/history.h"

namespace kirto {

void History::Record(Step step) {
    const auto done = static_cast<std::ptrdiff_t>(done_);
    steps_.erase(steps_.begin() + done, steps_.end());
    if (saved_ > done) saved_ = kNever;
    steps_.push_back(std::move(step));
    ++done_;
}

void History::Extend(Moment after) {
    if (done_ == 0) return;
    steps_[done_ - 1].after = std::move(after);
    if (IsAtSaved()) saved_ = kNever;
}

const History::Step* History::Undo() {
    return done_ > 0 ? &steps_[--done_] : nullptr;
}

const History::Step* History::Redo() {
    return done_ < steps_.size() ? &steps_[done_++] : nullptr;
}

std::string History::UndoName() const {
    return done_ > 0 ? steps_[done_ - 1].name : std::string();
}

std::string History::RedoName() const {
    return done_ < steps_.size() ? steps_[done_].name : std::string();
}

void History::Clear() {
    *this = History();
}

bool History::DropOne() {
    if (done_ > 0) {
        steps_.pop_front();
        --done_;
        // A state that was left by the dropped step can't be reached again.
        saved_ = saved_ > 0 ? saved_ - 1 : kNever;
        return true;
    }
    if (steps_.empty()) return false;
    steps_.pop_back();
    if (saved_ > static_cast<std::ptrdiff_t>(steps_.size())) saved_ = kNever;
    return true;
}

}  // namespace kirto
