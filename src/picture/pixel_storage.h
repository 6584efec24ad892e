#pragma once

#include <memory>

#include "base/allocation.h"
#include "base/pixel_budget.h"
#include "base/types.h"

namespace kirto {

// Bytes of pixels in memory, counted by a budget as long as they exist. Filled by whoever made
// them, constant once they are shared.
class PixelStorage {
  public:
    // Zeros. Null when the budget, if any, refuses so many bytes or memory is short.
    static std::shared_ptr<PixelStorage> Make(size_t bytes, std::shared_ptr<PixelBudget> budget);
    // The same for bytes that are written before they are read.
    static std::shared_ptr<PixelStorage> MakeUnfilled(size_t bytes,
                                                      std::shared_ptr<PixelBudget> budget);
    ~PixelStorage();
    // Has the budget, if any, count what none counts yet. False when it refuses.
    bool LetCount(std::shared_ptr<PixelBudget> budget);
    PixelStorage(const PixelStorage&) = delete;
    PixelStorage& operator=(const PixelStorage&) = delete;

    size_t Size() const { return size_; }
    uint8* Bytes() { return bytes_.get(); }
    const uint8* Bytes() const { return bytes_.get(); }

  private:
    using Allocate = AllocatedArray<uint8> (*)(size_t bytes);

    static std::shared_ptr<PixelStorage> Make(size_t bytes, Allocate allocate,
                                              std::shared_ptr<PixelBudget> budget);
    PixelStorage(AllocatedArray<uint8> bytes, size_t size, std::shared_ptr<PixelBudget> budget);

    const AllocatedArray<uint8> bytes_;
    const size_t size_;
    std::shared_ptr<PixelBudget> budget_;
};

}  // namespace kirto
