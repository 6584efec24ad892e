#include "formats/faithful/frame_writer.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "formats/faithful/tolerant_strings.h"
#include "formats/gif/gif_row_order.h"

namespace kirto {

namespace {

constexpr size_t kSubBlock = 255;
// A table of its own saves bits where codes are short, and costs its entries.
constexpr size_t kWorthOwnTable = 1000;  // bytes of data
// So many pixels a byte are strings so long that they gain nothing by ending early.
constexpr size_t kShortStrings = 16;
// Indices that strings give up for the next ones.
constexpr size_t kShorter = 2;
// Above those of any index.
constexpr int32 kAnyBits = 9;

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

}  // namespace

size_t FrameWriter::Encoding::Size() const {
    const size_t table_size = use.local ? size_t{3} << use.table.Bits() : 0;
    return table_size + data.size() + (data.size() + kSubBlock - 1) / kSubBlock;
}

ByteWriter FrameWriter::Encode(int32 plan_number) {
    const FramePlan& plan = plans_[static_cast<size_t>(plan_number)];
    ByteWriter bytes;
    if (plan.source) {
        WriteSource(plan, &bytes);
        return bytes;
    }
    const Encoding smallest = Smallest(plan, AreaOf(plan));
    const TableUse& use = smallest.use;
    WriteControl(plan, use.transparent_index, &bytes);
    WriteHeader(plan.rect, use.local ? use.table.Bits() : 0, layout_.interlaced, &bytes);
    if (use.local) use.table.Write(&bytes);
    WriteData(smallest.data, use.bits, &bytes);
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

ImageArea FrameWriter::AreaOf(const FramePlan& plan) const {
    const PixelRect& rect = plan.rect;
    const ScreenPixels shown = screen_.ShowPart(plan.shown, rect);
    const ScreenPixels below = ShowBackdrop(screen_, plans_, plan.below, rect);
    const size_t width = static_cast<size_t>(rect.width);
    ImageArea area{ScreenPixels(shown.size()), std::vector<uint8>(shown.size())};
    size_t to = 0;
    for (GifRowOrder order(rect.height, layout_.interlaced); !order.Done(); order.Next()) {
        const size_t start = static_cast<size_t>(order.Row()) * width;
        for (size_t i = start; i < start + width; ++i, ++to) {
            area.keys[to] = shown[i];
            area.skippable[to] = shown[i] == below[i] ? 1 : 0;
        }
    }
    return area;
}

// What can be done with the common table and with one of the image's own.
FrameWriter::Encoding FrameWriter::Smallest(const FramePlan& plan, const ImageArea& area) {
    Encoding best;
    int32 bits = kAnyBits;
    for (const TableUse& use : GlobalUses(layout_.global_table, plan, area)) {
        bits = std::min(bits, use.bits);
        Compress(area, use, &best);
    }
    if (best.data.empty() || best.Size() >= kWorthOwnTable) {
        for (const TableUse& use : LocalUses(plan, area, bits))
            Compress(area, use, &best);
    }
    if (layout_.tolerance > 0) Tolerate(area, &best);
    Refine(area, &best);
    return best;
}

// Takes the place of the best where it is smaller.
void FrameWriter::Compress(const ImageArea& area, const TableUse& use, Encoding* best) {
    for (Drawing& drawing : DrawingsOf(area, use)) {
        ChoiceLzwEncoder::Limits limits;
        if (!best->data.empty()) limits = {best->data.size(), &best->pace};
        Encoding encoding{use, std::move(drawing), {}, {}, false};
        const auto codes = encoder_.Encode(ImageOf(area, encoding), 0, limits);
        encoding.data.assign(codes.begin(), codes.end());
        if (!encoder_.Complete()) continue;
        if (!best->data.empty() && encoding.Size() >= best->Size()) continue;
        encoding.filled = encoder_.HasFilledTable();
        encoding.pace = encoder_.Pace();
        *best = std::move(encoding);
    }
}

ChoiceLzwEncoder::Image FrameWriter::ImageOf(const ImageArea& area, const Encoding& encoding) {
    ChoiceLzwEncoder::Image image;
    image.indices = encoding.drawing.indices;
    if (encoding.drawing.chooses) image.skippable = area.skippable;
    image.transparent = static_cast<uint8>(std::max(encoding.use.transparent_index, 0));
    image.min_code_size = encoding.use.bits;
    return image;
}

// Colors that are near one another take each other's place where that makes the codes fewer.
void FrameWriter::Tolerate(const ImageArea& area, Encoding* best) {
    const ChoiceLzwEncoder::Image image = ImageOf(area, *best);
    Encoding tolerant{best->use, best->drawing, {}, {}, false};
    const std::span<const uint32> keys = best->use.table.Keys();
    TolerantStrings strings(keys.first(std::min(keys.size(), size_t{1} << best->use.bits)),
                            best->use.transparent_index, layout_.tolerance, work_);
    tolerant.drawing.indices = strings.Find(image);
    const auto codes = encoder_.Encode(ImageOf(area, tolerant), 0, {});
    if (!encoder_.Complete() || codes.size() >= best->data.size()) return;
    tolerant.data.assign(codes.begin(), codes.end());
    tolerant.filled = encoder_.HasFilledTable();
    tolerant.pace = encoder_.Pace();
    *best = std::move(tolerant);
}

// Greedy strings and clearing the table whenever it is full are found soon; more effort is for the
// drawing that does best with them.
void FrameWriter::Refine(const ImageArea& area, Encoding* best) {
    const auto image = ImageOf(area, *best);
    const auto take = [&](std::span<const uint8> codes) {
        if (!encoder_.Complete() || codes.size() >= best->data.size()) return;
        best->data.assign(codes.begin(), codes.end());
        best->pace = encoder_.Pace();
    };
    const auto limits = [&] { return ChoiceLzwEncoder::Limits{best->data.size(), &best->pace}; };
    const bool short_strings = best->data.size() * kShortStrings > area.keys.size();
    if (best->filled) {
        const std::vector<size_t> clearings = encoder_.FindClearings(image, best->pace);
        take(encoder_.EncodeCleared(image, 0, clearings, limits()));
        if (short_strings) take(encoder_.EncodeCleared(image, kShorter, clearings, limits()));
    } else if (short_strings) {
        take(encoder_.Encode(image, kShorter, limits()));
    }
}

}  // namespace kirto
