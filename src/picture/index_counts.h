#pragma once

#include <array>
#include <span>

#include "base/types.h"

namespace kirto {

// How often each index occurs, and in which order they appear first. Used by one thread.
class IndexCounts {
  public:
    // More indices, up to 2^32 - 1 in all.
    void Add(std::span<const uint8> indices);

    uint32 Of(uint8 index) const { return counts_[index]; }
    // The indices that occur, each once.
    std::span<const uint8> InOrder() const { return {order_.data(), order_size_}; }

  private:
    void AddBlock(std::span<const uint8> block);
    void Append(std::span<const uint8> block);
    bool AreKnown(const uint8* group) const;

    std::array<uint32, 256> counts_{};
    std::array<uint8, 256> known_{};  // 1: it is in the order
    std::array<uint8, 256> order_{};
    size_t order_size_ = 0;
};

}  // namespace kirto
