#pragma once

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

#include "base/types.h"
#include "picture/index_counts.h"
#include "picture/pixel_storage.h"

namespace kirto {

// The pixels that indices stand for, as they lie in memory. Constant once it is shared.
struct PixelTable {
    std::array<uint32, 256> pixels{};

    bool operator==(const PixelTable&) const = default;
};

using SharedPixelTable = std::shared_ptr<const PixelTable>;

// A row of a strip, which outlives it: pixels of 4 bytes, or else indices into a table, or else the
// same pixel everywhere.
struct PixelRow {
    const uint8* pixels = nullptr;
    const uint8* indices = nullptr;
    const SharedPixelTable* table = nullptr;  // of the indices
    uint32 solid = 0;

    // Writes the first count pixels to target, 4 bytes each.
    void Expand(int32 count, uint8* target) const;
};

// A pixel with the number of times it occurs.
struct PixelCount {
    uint32 pixel = 0;
    uint32 count = 0;

    bool operator==(const PixelCount&) const = default;
};

// A few rows of a picture, and the smallest unit that pictures share. Never changes; may be used by
// several threads.
class Strip {
  public:
    // Pictures are made of strips of at most so many rows.
    static constexpr int32 kMaxRows = 64;
    // Rows of a strip whose pixels differ: not too few for what a strip costs itself, nor so many
    // that a change of one takes many with it.
    static int32 RowsFor(int32 width);

    // All pixels are the same.
    static std::shared_ptr<const Strip> Solid(uint32 pixel, int32 width, int32 rows);
    // An index a pixel, from the storage's first byte on. counts: of these indices, where somebody
    // has counted them, else null. similar: of the same size, and of the same table or storage,
    // which may tell most of the counts if it has been counted and still exists when they are asked
    // for; or null.
    static std::shared_ptr<const Strip> Indexed(
        std::shared_ptr<const PixelStorage> storage, SharedPixelTable table, int32 width,
        int32 rows, const IndexCounts* counts = nullptr,
        const std::shared_ptr<const Strip>& similar = nullptr);
    // 4 bytes a pixel, kept alive by the owner.
    static std::shared_ptr<const Strip> Direct(std::shared_ptr<const void> owner,
                                               const uint8* pixels, int32 width, int32 rows);
    // So many rows from that one on, all within the strip. They share its memory.
    std::shared_ptr<const Strip> Slice(int32 first, int32 rows) const;
    // The same indices into another table. Only for a strip of indices, with which it shares them.
    std::shared_ptr<const Strip> WithTable(SharedPixelTable table) const;

    int32 Rows() const { return rows_; }
    // Whether it was made of that one pixel.
    bool IsSolid(uint32 pixel) const { return !pixels_ && !indices_ && solid_ == pixel; }
    // y: 0 to Rows() - 1.
    PixelRow Row(int32 y) const;
    // The bytes of all rows, one after the other; null unless they are pixels of 4 bytes.
    const uint8* Pixels() const { return pixels_; }
    // The indices of all rows; null unless there are.
    const uint8* Indices() const { return indices_; }
    const SharedPixelTable& Table() const { return table_; }
    // Whether the predicate is true for every PixelCount: it is asked in the order in which the
    // pixels appear first, up to the one it is false for. Counted when first asked for. Not for
    // strips of 4-byte pixels, which may have any number of them.
    template <typename Predicate>
    bool AllCounts(const Predicate& predicate) const {
        if (!indices_) return predicate(PixelCount{solid_, static_cast<uint32>(Size())});
        Count();
        for (const IndexCount& each : *counts_)
            if (!predicate(PixelCount{table_->pixels[each.index], each.count})) return false;
        return true;
    }
    // Counts now what AllCounts() will ask for.
    void Count() const;

  private:
    Strip(int32 width, int32 rows) : width_(width), rows_(rows) {}
    size_t Size() const { return static_cast<size_t>(width_) * static_cast<size_t>(rows_); }
    using Listed = std::shared_ptr<const std::vector<IndexCount>>;

    void SetCounts(const IndexCounts& counts) const { SetCounts(ListOf(counts)); }
    void SetCounts(Listed counts) const;
    static Listed ListOf(const IndexCounts& counts);
    void CountIndices() const;
    bool CountChanges() const;

    const int32 width_;
    const int32 rows_;
    std::shared_ptr<const void> owner_;  // of what the pointers point to
    const uint8* pixels_ = nullptr;
    const uint8* indices_ = nullptr;
    SharedPixelTable table_;
    uint32 solid_ = 0;
    std::weak_ptr<const Strip> similar_;
    mutable std::once_flag counting_;
    mutable Listed counts_;  // of the indices; shared by strips of one storage
    mutable std::atomic<bool> counted_ = false;
};

}  // namespace kirto
