#include "picture/pixel_storage.h"

#include <utility>

namespace kirto {

std::shared_ptr<PixelStorage> PixelStorage::Make(size_t bytes,
                                                 std::shared_ptr<PixelBudget> budget) {
    return Make(bytes, AllocateArray<uint8>, std::move(budget));
}

std::shared_ptr<PixelStorage> PixelStorage::MakeUnfilled(size_t bytes,
                                                         std::shared_ptr<PixelBudget> budget) {
    return Make(bytes, AllocateUnfilledArray<uint8>, std::move(budget));
}

std::shared_ptr<PixelStorage> PixelStorage::Make(size_t bytes, Allocate allocate,
                                                 std::shared_ptr<PixelBudget> budget) {
    if (budget && !budget->Reserve(bytes)) return nullptr;
    AllocatedArray<uint8> allocated = allocate(bytes);
    if (!allocated) {
        if (budget) budget->Release(bytes);
        return nullptr;
    }
    return std::shared_ptr<PixelStorage>(
        new PixelStorage(std::move(allocated), bytes, std::move(budget)));
}

PixelStorage::PixelStorage(AllocatedArray<uint8> bytes, size_t size,
                           std::shared_ptr<PixelBudget> budget)
    : bytes_(std::move(bytes)), size_(size), budget_(std::move(budget)) {}

PixelStorage::~PixelStorage() {
    if (budget_) budget_->Release(size_);
}

bool PixelStorage::LetCount(std::shared_ptr<PixelBudget> budget) {
    if (budget && !budget->Reserve(size_)) return false;
    budget_ = std::move(budget);
    return true;
}

}  // namespace kirto
