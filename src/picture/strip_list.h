#pragma once

#include <memory>
#include <vector>

#include "base/pixel_budget.h"
#include "base/types.h"
#include "picture/strip.h"

namespace kirto {

// The strips of a picture, top down, each shared between all pictures that have the same rows
// there. Pictures that are the same throughout share the list, too. Never changes; may be used by
// several threads.
class StripList {
  public:
    using Strips = std::vector<std::shared_ptr<const Strip>>;

    // budget: counts what the list takes beside the pixels of its strips; may be null. Null when it
    // refuses.
    static std::shared_ptr<const StripList> Of(Strips strips, std::shared_ptr<PixelBudget> budget);
    ~StripList();
    StripList(const StripList&) = delete;
    StripList& operator=(const StripList&) = delete;

    const Strips& All() const { return strips_; }
    // The first row of each strip.
    const std::vector<int32>& FirstRows() const { return first_rows_; }
    int32 Height() const { return height_; }

  private:
    explicit StripList(Strips strips);
    uint64 CostNow() const;

    const Strips strips_;
    std::vector<int32> first_rows_;
    int32 height_ = 0;
    uint64 cost_ = 0;
    std::shared_ptr<PixelBudget> budget_;  // holds the cost of it
};

}  // namespace kirto
