#include "document/history.h"

namespace kirto {

void History::Record(Step step) {
    steps_.resize(done_);
    if (saved_ && *saved_ > done_) saved_.reset();
    steps_.push_back(std::move(step));
    ++done_;
}

void History::Extend(Moment after) {
    if (done_ == 0) return;
    steps_[done_ - 1].after = std::move(after);
    if (IsAtSaved()) saved_.reset();
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
        if (saved_ && (*saved_)-- == 0) saved_.reset();
        return true;
    }
    if (steps_.empty()) return false;
    steps_.pop_back();
    if (saved_ && *saved_ > steps_.size()) saved_.reset();
    return true;
}

}  // namespace kirto
