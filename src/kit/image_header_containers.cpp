// The parsers of formats whose size lies somewhere within: directories, boxes, chunks, bit streams.
#include <algorithm>
#include <array>

#include "base/allocation.h"
#include "kit/image_header_parsers.h"

namespace kirto::image_header {

namespace {

constexpr int64 kMegabyte = int64{1} << 20;
constexpr int64 kLargestIconFile = 16 * kMegabyte;
constexpr size_t kMostPackedTexts = 8;

size_t Occurrences(std::string_view text, std::string_view wanted) {
    size_t count = 0;
    for (size_t at = text.find(wanted); at != std::string_view::npos;
         at = text.find(wanted, at + 1))
        ++count;
    return count;
}

// The whole file has at most so many bytes, and not too many packed texts.
bool IsHarmless(Head& head, int64 most_bytes) {
    if (head.FileSize() > most_bytes) return false;
    const size_t size = static_cast<size_t>(head.FileSize());
    const AllocatedArray<uint8> bytes = AllocateArray<uint8>(size);
    if (!bytes) return false;
    head.Read(0, {bytes.get(), size});
    const std::string_view text(reinterpret_cast<const char*>(bytes.get()), size);
    return Occurrences(text, "zTXt") + Occurrences(text, "iTXt") <= kMostPackedTexts;
}

// Numbers of a TIFF file, in its own byte order.
class TiffReader {
  public:
    explicit TiffReader(Head& head)
        : head_(head), big_endian_(head.Byte(0) == 'M'), wide_(Number16(2) == 43) {}

    bool ReadSize(ImageHeader* header) {
        const int64 directory = wide_ ? Number64(8) : Number32(4);
        if (directory <= 0 || directory >= head_.FileSize()) return false;
        const int64 count = wide_ ? Number64(directory) : Number16(directory);
        const int64 entry_size = wide_ ? 20 : 12;
        int64 entry = directory + (wide_ ? 8 : 2);
        for (int64 i = 0; i < count && entry < head_.FileSize(); ++i, entry += entry_size) {
            const uint32 tag = Number16(entry);
            if (tag == 256) header->width = Value(entry);
            if (tag == 257) header->height = Value(entry);
            // Tags stand in rising order.
            if (tag > 257 && header->width > 0 && header->height > 0) break;
        }
        return header->width > 0 && header->height > 0;
    }

  private:
    uint32 Number16(int64 at) { return big_endian_ ? head_.Big16(at) : head_.Little16(at); }
    uint32 Number32(int64 at) { return big_endian_ ? head_.Big32(at) : head_.Little32(at); }
    int64 Number64(int64 at) {
        const uint64 high = Number32(big_endian_ ? at : at + 4);
        const uint64 low = Number32(big_endian_ ? at + 4 : at);
        return static_cast<int64>(high << 32 | low);
    }
    uint64 Value(int64 entry) {
        constexpr uint32 kShort = 3;
        const int64 value = entry + (wide_ ? 12 : 8);
        return Number16(entry + 2) == kShort ? Number16(value) : Number32(value);
    }

    Head& head_;
    const bool big_endian_;
    const bool wide_;
};

// Takes bits from the lowest on.
class BitReader {
  public:
    BitReader(const Head& head, size_t byte) : head_(head), bit_(byte * 8) {}

    uint64 Take(int count) {
        uint64 bits = 0;
        for (int i = 0; i < count; ++i, ++bit_)
            bits |= (uint64{head_.Byte(bit_ / 8)} >> (bit_ % 8) & 1) << i;
        return bits;
    }

  private:
    const Head& head_;
    size_t bit_;
};

uint64 JpegXlSide(BitReader& bits, bool in_eights) {
    if (in_eights) return (bits.Take(5) + 1) * 8;
    constexpr std::array kWidths = {9, 13, 18, 30};
    return bits.Take(kWidths[bits.Take(2)]) + 1;
}

}  // namespace

bool ReadTiff(Head& head, ImageHeader* header) {
    return TiffReader(head).ReadSize(header);
}

// All pictures of the animation count, as its decoder may keep them all.
bool ReadMng(Head& head, ImageHeader* header) {
    if (!IsHarmless(head, kMegabyte) || !head.Has(12, "MHDR")) return false;
    header->width = head.Big32(16);
    header->height = head.Big32(20);
    constexpr int64 kChunkFrame = 12;
    uint64 pixels = 2 * header->Pixels();
    for (int64 offset = 8; offset < head.FileSize() && pixels < ImageHeader::kMostPixels;) {
        const uint32 type = head.Big32(offset + 4);
        if (type == FourCharCode("IHDR") || type == FourCharCode("BASI") ||
            type == FourCharCode("JHDR")) {
            pixels += ImageHeader{"", head.Big32(offset + 8), head.Big32(offset + 12)}.Pixels();
        }
        offset += kChunkFrame + head.Big32(offset);
    }
    header->working_bytes = 4 * pixels;
    return header->Pixels() > 0;
}

bool ReadIcon(Head& head, ImageHeader*) {
    return IsHarmless(head, kLargestIconFile);
}

bool ReadHeif(Head& head, ImageHeader* header) {
    const std::string_view text = head.Text();
    for (size_t at = text.find("ispe"); at != std::string_view::npos;
         at = text.find("ispe", at + 1)) {
        const ImageHeader found{"", head.Big32(static_cast<int64>(at) + 8),
                                head.Big32(static_cast<int64>(at) + 12)};
        if (found.Pixels() <= header->Pixels()) continue;
        header->width = found.width;
        header->height = found.height;
    }
    return header->Pixels() > 0;
}

bool ReadJpeg2000(Head& head, ImageHeader* header) {
    const size_t found = head.Text().find("ihdr");
    if (found == std::string_view::npos) return false;
    header->height = head.Big32(static_cast<int64>(found) + 4);
    header->width = head.Big32(static_cast<int64>(found) + 8);
    return header->Pixels() > 0;
}

bool ReadJpegXl(Head& head, ImageHeader* header) {
    constexpr std::string_view kCodeStream = "\xFF\x0A";
    size_t start = 0;
    if (!head.Text().starts_with(kCodeStream)) {
        const std::string_view text = head.Text();
        start = std::min(text.find("jxlc"), text.find("jxlp"));
        if (start != std::string_view::npos) start = text.find(kCodeStream, start);
        if (start == std::string_view::npos) return false;
    }
    BitReader bits(head, start + kCodeStream.size());
    const bool in_eights = bits.Take(1) != 0;
    header->height = JpegXlSide(bits, in_eights);
    // Width to height.
    constexpr std::array<std::array<uint64, 2>, 8> kRatios = {
        {{0, 1}, {1, 1}, {12, 10}, {4, 3}, {3, 2}, {16, 9}, {5, 4}, {2, 1}}};
    const size_t ratio = bits.Take(3);
    header->width = ratio == 0 ? JpegXlSide(bits, in_eights)
                               : header->height * kRatios[ratio][0] / kRatios[ratio][1];
    return header->Pixels() > 0;
}

}  // namespace kirto::image_header
