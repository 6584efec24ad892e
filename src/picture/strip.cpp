#include "picture/strip.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace kirto {

namespace {

constexpr int32 kPixelsOfAStrip = 1 << 16;

}  // namespace

void PixelRow::Expand(int32 count, uint8* target) const {
    const size_t size = static_cast<size_t>(count);
    if (pixels) {
        std::memcpy(target, pixels, size * 4);
    } else if (indices) {
        const uint32* const colors = (*table)->pixels.data();
        for (size_t x = 0; x < size; ++x)
            std::memcpy(target + x * 4, &colors[indices[x]], 4);
    } else {
        for (size_t x = 0; x < size; ++x)
            std::memcpy(target + x * 4, &solid, 4);
    }
}

int32 Strip::RowsFor(int32 width) {
    return std::clamp(kPixelsOfAStrip / std::max(width, 1), 1, kMaxRows);
}

std::shared_ptr<const Strip> Strip::Solid(uint32 pixel, int32 width, int32 rows) {
    const std::shared_ptr<Strip> strip(new Strip(width, rows));
    strip->solid_ = pixel;
    return strip;
}

std::shared_ptr<const Strip> Strip::Indexed(std::shared_ptr<const PixelStorage> storage,
                                            SharedPixelTable table, int32 width, int32 rows,
                                            const IndexCounts* counts,
                                            const std::shared_ptr<const Strip>& similar) {
    const std::shared_ptr<Strip> strip(new Strip(width, rows));
    strip->indices_ = storage->Bytes();
    strip->owner_ = std::move(storage);
    strip->table_ = std::move(table);
    if (counts) {
        std::call_once(strip->counting_, [&] { strip->SetCounts(*counts); });
    } else {
        strip->similar_ = similar;
    }
    return strip;
}

std::shared_ptr<const Strip> Strip::Direct(std::shared_ptr<const void> owner, const uint8* pixels,
                                           int32 width, int32 rows) {
    const std::shared_ptr<Strip> strip(new Strip(width, rows));
    strip->owner_ = std::move(owner);
    strip->pixels_ = pixels;
    return strip;
}

std::shared_ptr<const Strip> Strip::Slice(int32 first, int32 rows) const {
    const size_t skipped = static_cast<size_t>(first) * static_cast<size_t>(width_);
    const std::shared_ptr<Strip> strip(new Strip(width_, rows));
    strip->owner_ = owner_;
    strip->pixels_ = pixels_ ? pixels_ + skipped * 4 : nullptr;
    strip->indices_ = indices_ ? indices_ + skipped : nullptr;
    strip->table_ = table_;
    strip->solid_ = solid_;
    return strip;
}

std::shared_ptr<const Strip> Strip::WithTable(SharedPixelTable table) const {
    const std::shared_ptr<Strip> strip(new Strip(width_, rows_));
    strip->owner_ = owner_;
    strip->indices_ = indices_;
    strip->table_ = std::move(table);
    return strip;
}

PixelRow Strip::Row(int32 y) const {
    const size_t skipped = static_cast<size_t>(y) * static_cast<size_t>(width_);
    PixelRow row;
    row.pixels = pixels_ ? pixels_ + skipped * 4 : nullptr;
    row.indices = indices_ ? indices_ + skipped : nullptr;
    row.table = indices_ ? &table_ : nullptr;
    row.solid = solid_;
    return row;
}

void Strip::Count() const {
    if (indices_) std::call_once(counting_, [this] { CountIndices(); });
}

void Strip::CountIndices() const {
    if (CountChanges()) return;
    IndexCounts counts;
    counts.Add({indices_, Size()});
    SetCounts(counts);
}

// Counts what differs from the similar strip, if that takes less. False if it does not.
bool Strip::CountChanges() const {
    const std::shared_ptr<const Strip> similar = similar_.lock();
    if (!similar || !similar->counted_) return false;
    if (similar->indices_ == indices_) {
        SetCounts(similar->counts_);
        return true;
    }
    const std::span<const uint8> before{similar->indices_, Size()};
    if (!AreMostlySame(before, {indices_, Size()})) return false;
    IndexCounts counts(*similar->counts_);
    counts.Change(before, {indices_, Size()});
    SetCounts(counts);
    return true;
}

void Strip::SetCounts(Listed counts) const {
    counts_ = std::move(counts);
    counted_ = true;
}

Strip::Listed Strip::ListOf(const IndexCounts& counts) {
    return std::make_shared<const std::vector<IndexCount>>(counts.Listed());
}

}  // namespace kirto
