#include "picture/strip_list.h"

#include <utility>

namespace kirto {

std::shared_ptr<const StripList> StripList::Of(Strips strips, std::shared_ptr<PixelBudget> budget) {
    const std::shared_ptr<StripList> list(new StripList(std::move(strips)));
    list->cost_ = list->CostNow();
    if (budget && !budget->Reserve(list->cost_)) return nullptr;
    list->budget_ = std::move(budget);
    return list;
}

StripList::StripList(Strips strips) : strips_(std::move(strips)) {
    first_rows_.reserve(strips_.size());
    for (const std::shared_ptr<const Strip>& strip : strips_) {
        first_rows_.push_back(height_);
        height_ += strip->Rows();
    }
}

StripList::~StripList() {
    if (budget_) budget_->Release(cost_);
}

// The entries, and the strips themselves where no other list has them. A frame's cost has room for
// a few.
uint64 StripList::CostNow() const {
    constexpr size_t kFew = 32;
    constexpr uint64 kEntry = 24;
    constexpr uint64 kStrip = sizeof(Strip) + 48;  // with its count of owners and that of the heap
    uint64 cost = 0;
    for (size_t i = kFew; i < strips_.size(); ++i)
        cost += kEntry + (strips_[i].use_count() == 1 ? kStrip : 0);
    return cost;
}

}  // namespace kirto
