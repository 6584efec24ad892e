#include "color/commonest_colors.h"

#include <algorithm>

namespace kirto {

CommonestColors::CommonestColors(size_t size)
    : size_(size), candidates_(AllocateArray<Candidate>(2 * size)) {}

bool CommonestColors::ComesBefore(const Candidate& a, const Candidate& b) {
    if (a.count != b.count) return a.count > b.count;
    const uint32 green_and_blue_a = a.key & 0xFFFF;
    const uint32 green_and_blue_b = b.key & 0xFFFF;
    if (green_and_blue_a != green_and_blue_b) return green_and_blue_a < green_and_blue_b;
    return a.place < b.place;
}

void CommonestColors::Add(const ColorValues::Item& color) {
    const Candidate candidate{color.key, color.value, added_++};
    if (thinned_ && !ComesBefore(candidate, last_)) return;
    candidates_[count_++] = candidate;
    if (count_ == 2 * size_) Thin();
}

void CommonestColors::Thin() {
    Candidate* const first = candidates_.get();
    std::nth_element(first, first + size_ - 1, first + count_, ComesBefore);
    last_ = first[size_ - 1];
    count_ = size_;
    thinned_ = true;
}

size_t CommonestColors::Keys(uint32* keys) {
    Candidate* const first = candidates_.get();
    std::sort(first, first + count_, ComesBefore);
    count_ = std::min(count_, size_);
    std::transform(first, first + count_, keys, [](const Candidate& each) { return each.key; });
    return count_;
}

}  // namespace kirto
