#include "formats/faithful/frame_writer.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <utility>

#include "color/color_values.h"
#include "formats/faithful/screen_difference.h"
#include "formats/gif/gif_row_order.h"

namespace kirto {

namespace {

constexpr size_t kSubBlock = 255;
// A table of its own saves bits where codes are short, and costs its entries.
constexpr size_t kWorthOwnTable = 1000;  // bytes of data
// A part of a size that tells nothing yet.
constexpr size_t kNearly = 50;
// Pixels that are worth an interruption of what is drawn.
constexpr size_t kLongStretch = 48;
// Codes fill no table of strings in fewer bytes.
constexpr size_t kFullTable = 4500;
constexpr ChoiceLzwEncoder::Effort kPatientEfforts[] = {
    {.shorter = 0, .patience = 3},
    {.shorter = 1, .patience = 3},
    {.shorter = 0, .patience = 50},
};

// Nothing where it would only say what is so without it.
void WriteControl(const FramePlan& plan, int32 transparent_index, ByteWriter* bytes) {
    const bool transparent = transparent_index != GifTable::kNone;
    const bool stays = plan.disposal == Disposal::kNone || plan.disposal == Disposal::kKeep;
    if (stays && plan.delay == 0 && !transparent) return;
    const uint8 start[3] = {0x21, 0xF9, 4};
    bytes->Bytes(start);
    const int32 flags = static_cast<int32>(plan.disposal) << 2 | (transparent ? 1 : 0);
    bytes->U8(static_cast<uint8>(flags));
    bytes->U16(static_cast<uint16>(plan.delay));
    bytes->U8(transparent ? static_cast<uint8>(transparent_index) : 0);
    bytes->U8(0);
}

// table_bits: of a table behind it; 0: none.
void WriteHeader(const PixelRect& rect, int32 table_bits, bool interlaced, ByteWriter* bytes) {
    bytes->U8(',');
    for (const int32 number : {rect.left, rect.top, rect.width, rect.height})
        bytes->U16(static_cast<uint16>(number));
    const int32 table = table_bits > 0 ? 0x80 | (table_bits - 1) : 0;
    bytes->U8(static_cast<uint8>(table | (interlaced ? 0x40 : 0)));
}

void WriteData(std::span<const uint8> codes, int32 min_code_size, ByteWriter* bytes) {
    bytes->U8(static_cast<uint8>(min_code_size));
    while (!codes.empty()) {
        const size_t size = std::min(codes.size(), kSubBlock);
        bytes->U8(static_cast<uint8>(size));
        bytes->Bytes(codes.first(size));
        codes = codes.subspan(size);
    }
    bytes->U8(0);
}

// How often each color stays as it is, by falling number.
std::vector<ColorValues::Item> Skipped(std::span<const uint32> keys,
                                       std::span<const uint8> skippable) {
    ColorValues counts;
    for (size_t i = 0; i < keys.size(); ++i) {
        if (skippable[i] == 0 || keys[i] == kNothing) continue;
        ColorValues::Item* const item = counts.FindOrAdd(keys[i]);
        if (!item) throw std::bad_alloc();
        ++item->value;
    }
    return CommonestFirst(counts);
}

// Skips stretches of at least so many pixels that may be skipped, but for those at their ends that
// go on with a run of what is drawn.
std::vector<uint8> Skipping(std::span<const uint8> indices, std::span<const uint8> skippable,
                            uint8 transparent, size_t least) {
    std::vector<uint8> result(indices.begin(), indices.end());
    const size_t size = result.size();
    for (size_t start = 0; start < size;) {
        size_t end = start;
        while (end < size && skippable[end] != 0)
            ++end;
        size_t first = start;
        size_t last = end;
        if (end - start < least) first = end;
        while (start > 0 && first < last && indices[first] == indices[start - 1])
            ++first;
        while (end < size && first < last && indices[last - 1] == indices[end])
            --last;
        for (; first < last; ++first)
            result[first] = transparent;
        start = end + 1;
    }
    return result;
}

int32 BitsFor(int32 index) {
    return std::max(2, static_cast<int32>(std::bit_width(static_cast<uint32>(index))));
}

}  // namespace

size_t FrameWriter::TableUse::Size() const {
    const size_t table_size = local ? size_t{3} << table.Bits() : 0;
    return table_size + data.size() + (data.size() + kSubBlock - 1) / kSubBlock;
}

ByteWriter FrameWriter::Encode(int32 plan_number) {
    const FramePlan& plan = plans_[static_cast<size_t>(plan_number)];
    ByteWriter bytes;
    if (plan.source) {
        WriteSource(plan, &bytes);
        return bytes;
    }
    const Area area = AreaOf(plan);
    const TableUse use = Smallest(plan, area);
    WriteControl(plan, use.transparent_index, &bytes);
    WriteHeader(plan.rect, use.local ? use.table.Bits() : 0, layout_.interlaced, &bytes);
    if (use.local) use.table.Write(&bytes);
    WriteData(use.data, use.bits, &bytes);
    return bytes;
}

void FrameWriter::WriteSource(const FramePlan& plan, ByteWriter* bytes) const {
    const GifSource& source = *plan.source;
    const bool local = source.local_table || !layout_.given || *layout_.given != *source.table;
    WriteControl(plan, source.transparent_index, bytes);
    const int32 bits = static_cast<int32>(std::bit_width(source.table->size())) - 1;
    WriteHeader(source.rect, local ? bits : 0, source.interlaced, bytes);
    for (size_t i = 0; local && i < source.table->size(); ++i) {
        const rgb_color color = (*source.table)[i];
        bytes->U8(color.red);
        bytes->U8(color.green);
        bytes->U8(color.blue);
    }
    WriteData({source.codes->Bytes(), source.codes_size}, source.min_code_size, bytes);
}

FrameWriter::Area FrameWriter::AreaOf(const FramePlan& plan) const {
    const ScreenPixels shown = screen_.Show(plan.shown);
    const ScreenPixels below = ShowBackdrop(screen_, plans_, plan.below);
    const PixelRect& rect = plan.rect;
    Area area;
    for (GifRowOrder order(rect.height, layout_.interlaced); !order.Done(); order.Next()) {
        const size_t start = screen_.At(rect.left, rect.top + order.Row());
        for (size_t i = start; i < start + static_cast<size_t>(rect.width); ++i) {
            area.keys.push_back(shown[i]);
            area.skippable.push_back(shown[i] == below[i] ? 1 : 0);
        }
    }
    return area;
}

// The smaller of what can be done with the common table and with one of the image's own.
FrameWriter::TableUse FrameWriter::Smallest(const FramePlan& plan, const Area& area) {
    TableUse best;
    if (Serves(layout_.global_table, plan)) {
        best = GlobalUse(plan);
        Compress(area, &best);
        if (best.Size() < kWorthOwnTable) return best;
    }
    TableUse local = LocalUse(plan, area);
    if (!best.data.empty() && local.bits >= best.bits) return best;
    Compress(area, &local);
    return best.data.empty() || local.Size() < best.Size() ? local : best;
}

FrameWriter::TableUse FrameWriter::GlobalUse(const FramePlan& plan) const {
    TableUse use;
    use.table = layout_.global_table;
    std::array<bool, GifTable::kMostEntries + 1> used{};
    int32 largest = 0;
    for (const ColorValues::Item& item : plan.colors) {
        const int32 index = use.table.IndexOf(item.key);
        used[static_cast<size_t>(index)] = true;
        largest = std::max(largest, index);
    }
    if (plan.skips) {
        auto* const unused = std::find(used.begin(), used.end(), false);
        use.transparent_index = static_cast<int32>(unused - used.begin());
    }
    use.bits = BitsFor(std::max(largest, use.transparent_index));
    return use;
}

FrameWriter::TableUse FrameWriter::LocalUse(const FramePlan& plan, const Area& area) const {
    TableUse use;
    use.local = true;
    std::vector<uint32> keys;
    for (const ColorValues::Item& item : plan.colors)
        keys.push_back(item.key);
    if (plan.skips) {
        use.transparent_index = static_cast<int32>(keys.size());
        // A color that is there already is not found here.
        keys.push_back(keys.empty() ? 0 : keys.front());
    }
    use.bits = BitsFor(static_cast<int32>(keys.size()) - 1);
    // What there is room for are colors of pixels that stay as they are: they may be drawn again.
    const size_t room = size_t{1} << GifTable(keys).Bits();
    if (plan.skips && keys.size() < room) {
        for (const ColorValues::Item& item : Skipped(area.keys, area.skippable)) {
            const bool known = std::find(keys.begin(), keys.end(), item.key) != keys.end();
            if (keys.size() < room && !known) keys.push_back(item.key);
        }
    }
    use.table = GifTable(keys);
    return use;
}

void FrameWriter::Compress(const Area& area, TableUse* use) {
    const int32 indices_end = 1 << use->bits;
    const bool skips = use->transparent_index != GifTable::kNone;
    std::vector<uint8> indices(area.keys.size());
    bool all_known = true;
    for (size_t i = 0; i < area.keys.size(); ++i) {
        int32 index = use->table.IndexOf(area.keys[i]);
        if (index == GifTable::kNone || index >= indices_end || index == use->transparent_index) {
            index = use->transparent_index;
            all_known = false;
        }
        indices[i] = static_cast<uint8>(index);
    }
    const auto transparent = static_cast<uint8>(skips ? use->transparent_index : 0);
    std::vector<ChoiceLzwEncoder::Image> images;
    if (all_known) images.push_back({indices, {}, 0, use->bits});
    std::vector<uint8> skipped;
    if (skips) {
        skipped = Skipping(indices, area.skippable, transparent, kLongStretch);
        images.push_back({skipped, {}, 0, use->bits});
        images.push_back({indices, area.skippable, transparent, use->bits});
    }
    TryImages(images, use);
}

// Greedy strings are found soon; more effort is for the images that do best with them.
void FrameWriter::TryImages(std::span<const ChoiceLzwEncoder::Image> images, TableUse* use) {
    std::vector<size_t> sizes;
    for (const ChoiceLzwEncoder::Image& image : images)
        sizes.push_back(TryImage(image, {.shorter = 0}, use));
    const size_t least = use->data.size();
    for (size_t i = 0; i < images.size(); ++i) {
        if (sizes[i] > least + least / kNearly) continue;
        TryImage(images[i], {.shorter = 1}, use);
        // Only then the table has been full.
        if (least < kFullTable) continue;
        for (const ChoiceLzwEncoder::Effort& effort : kPatientEfforts)
            TryImage(images[i], effort, use);
    }
}

// The size, or one above that of the data that there is, which the smaller takes the place of.
size_t FrameWriter::TryImage(const ChoiceLzwEncoder::Image& image,
                             const ChoiceLzwEncoder::Effort& effort, TableUse* use) {
    const size_t least =
        use->data.empty() ? std::numeric_limits<size_t>::max() / 2 : use->data.size();
    const std::span<const uint8> codes =
        encoder_.Encode(image, effort, least - 1 + least / kNearly);
    if (codes.size() < least) use->data.assign(codes.begin(), codes.end());
    return codes.size();
}

}  // namespace kirto
