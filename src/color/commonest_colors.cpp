#include "color/commonest_colors.h"

#include <algorithm>

namespace kirto {

CommonestColors::CommonestColors(size_t size)
    : size_(size), candidates_(AllocateArray<Candidate>(2 * size)) {}

void CommonestColors::Keep(const Candidate& candidate) {
    candidates_[count_++] = candidate;
    if (count_ == 2 * size_) Thin();
}

void CommonestColors::Thin() {
    Candidate* const first = candidates_.get();
    std::nth_element(first, first + size_ - 1, first + count_, ComesBefore{});
    last_ = first[size_ - 1];
    count_ = size_;
    thinned_ = true;
}

size_t CommonestColors::Keys(uint32* keys) {
    Candidate* const first = candidates_.get();
    std::sort(first, first + count_, ComesBefore{});
    count_ = std::min(count_, size_);
    std::transform(first, first + count_, keys, [](const Candidate& each) { return each.key; });
    return count_;
}

}  // namespace kirto
