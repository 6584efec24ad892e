#pragma once

#include <array>
#include <span>
#include <vector>

#include "base/types.h"

namespace kirto {

// How often an index occurs, and where it does first: so many others are before it.
struct IndexCount {
    uint32 count = 0;
    uint32 first = 0;
    uint8 index = 0;
};

// How often each index occurs, and in which order they appear first. Used by one thread.
class IndexCounts {
  public:
    IndexCounts() = default;
    // As they were listed.
    explicit IndexCounts(std::span<const IndexCount> listed);

    // More indices, up to 2^32 - 1 in all.
    void Add(std::span<const uint8> indices);
    // These are the counts of before, and become those of after; both have the same size. Takes
    // little where little differs.
    void Change(std::span<const uint8> before, std::span<const uint8> after);

    uint32 Of(uint8 index) const { return counts_[index]; }
    // The indices that occur, each once.
    std::span<const uint8> InOrder() const { return {order_.data(), order_size_}; }
    // The same with their counts.
    std::vector<IndexCount> Listed() const;

  private:
    struct Passed;

    void AddBlock(std::span<const uint8> block);
    void ChangeBlock(std::span<const uint8> before, const uint8* after, uint32 place,
                     Passed& passed);
    void Pass(const uint8* after, size_t count, uint32 place, Passed& passed);
    void FindLost(std::span<const uint8> indices);
    void Sort();
    void Append(std::span<const uint8> indices);
    void AppendFew(std::span<const uint8> indices, uint32 place);
    void Know(uint8 index, uint32 first);

    std::array<uint32, 256> counts_{};
    std::array<uint32, 256> first_{};  // places; only of those in the order
    std::array<uint8, 256> known_{};   // 1: it is in the order
    std::array<uint8, 256> order_{};
    size_t order_size_ = 0;
    uint32 added_ = 0;  // indices
};

// Whether as many indices are the same in so many places, by a few samples, that Change() takes
// less than Add().
bool AreMostlySame(std::span<const uint8> first, std::span<const uint8> second);

}  // namespace kirto
