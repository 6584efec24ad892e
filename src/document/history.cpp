#include "document/history.h"

namespace kirto {

void History::Record(Step step) {
    const std::lock_guard lock(mutex_);
    steps_.resize(done_);
    if (saved_ && *saved_ > done_) saved_.reset();
    steps_.push_back(std::move(step));
    ++done_;
}

void History::Extend(Moment after) {
    const std::lock_guard lock(mutex_);
    if (done_ == 0) return;
    steps_[done_ - 1].after = std::move(after);
    if (saved_ == done_) saved_.reset();
}

std::optional<History::Step> History::Undo() {
    const std::lock_guard lock(mutex_);
    if (done_ == 0) return std::nullopt;
    return steps_[--done_];
}

std::optional<History::Step> History::Redo() {
    const std::lock_guard lock(mutex_);
    if (done_ == steps_.size()) return std::nullopt;
    return steps_[done_++];
}

size_t History::UndoSteps() const {
    const std::lock_guard lock(mutex_);
    return done_;
}

std::string History::UndoName() const {
    const std::lock_guard lock(mutex_);
    return done_ > 0 ? steps_[done_ - 1].name : std::string();
}

std::string History::RedoName() const {
    const std::lock_guard lock(mutex_);
    return done_ < steps_.size() ? steps_[done_].name : std::string();
}

void History::MarkSaved() {
    const std::lock_guard lock(mutex_);
    saved_ = done_;
}

bool History::IsAtSaved() const {
    const std::lock_guard lock(mutex_);
    return saved_ == done_;
}

void History::Clear() {
    const std::lock_guard lock(mutex_);
    steps_.clear();
    done_ = 0;
    saved_ = 0;
}

void History::ForgetSaved() {
    const std::lock_guard lock(mutex_);
    saved_.reset();
}

bool History::DropOne() {
    const std::lock_guard lock(mutex_);
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
