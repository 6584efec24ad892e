#include "formats/faithful/lzw_strings.h"

namespace kirto {

void LzwStrings::Clear(int32 index_bits) {
    bits_ = static_cast<uint32>(index_bits);
    const uint32 indices = 1U << bits_;
    longer_.resize(size_t{kMost} << bits_);
    std::fill_n(longer_.begin(), size_t{indices} << bits_, uint16{kNone});
    for (uint32 i = 0; i < indices; ++i)
        nodes_[i] = {0, 1, 0, static_cast<uint8>(i)};
    std::fill_n(leaps_.begin(), indices, uint16{kNone});
    // The codes between are those that clear the table and end the image.
    next_free_ = indices + 2;
}

void LzwStrings::Link(uint32 code, uint32 index, uint32 added) {
    if (nodes_[code].last != index) return;
    Node& node = nodes_[added];
    node.run = static_cast<uint16>(nodes_[code].run + 1);
    if (node.run <= kLeap) return;
    if (node.run > kLeap + 1) {
        node.back = static_cast<uint16>(Longer(nodes_[code].back, index));
    } else {
        uint32 start = added;
        for (uint32 i = 0; i < kLeap; ++i)
            start = nodes_[start].shorter;
        node.back = static_cast<uint16>(start);
    }
    leaps_[node.back] = static_cast<uint16>(added);
}

}  // namespace kirto
