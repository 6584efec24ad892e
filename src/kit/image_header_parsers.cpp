#include "kit/image_header_parsers.h"

#include <algorithm>
#include <charconv>

#include "base/byte_order.h"

namespace kirto::image_header {

namespace {

constexpr size_t kHeadBytes = size_t{64} << 10;

bool Store(uint64 width, uint64 height, ImageHeader* header) {
    header->width = width;
    header->height = height;
    return width > 0 && height > 0;
}

// The first number from the position on, which moves past it; 0 for none.
uint64 NextNumber(std::string_view text, size_t* position) {
    *position = std::min(text.find_first_of("0123456789", *position), text.size());
    uint64 number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data() + *position, end, number);
    *position = static_cast<size_t>(result.ptr - text.data());
    return result.ec == std::errc() ? number : 0;
}

// A number of 7 bits a byte, the highest bit set in all but the last.
uint64 MultiByte(const Head& head, size_t* position) {
    uint64 number = 0;
    for (int bytes = 0; bytes < 5; ++bytes) {
        const uint8 byte = head.Byte((*position)++);
        number = number << 7 | (byte & 0x7F);
        if ((byte & 0x80) == 0) return number;
    }
    return 0;
}

bool IsStartOfFrame(uint8 marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// SOF2, SOF6, SOF10 and SOF14.
bool IsProgressive(uint8 marker) {
    return (marker & 3) == 2;
}

}  // namespace

Head::Head(BFile& file) : file_(file), text_(kHeadBytes, '\0') {
    file_.Seek(0, SEEK_FROM_START);
    const int64 size = file_.Read(text_.data(), text_.size());
    text_.resize(static_cast<size_t>(std::max<int64>(size, 0)));
}

bool Head::Has(size_t offset, std::string_view bytes) const {
    return text_.size() >= offset && Text().substr(offset).starts_with(bytes);
}

uint8 Head::Byte(size_t offset) const {
    return offset < text_.size() ? static_cast<uint8>(text_[offset]) : uint8{0};
}

void Head::Read(int64 offset, std::span<uint8> bytes) {
    std::fill(bytes.begin(), bytes.end(), uint8{0});
    if (file_.Seek(offset, SEEK_FROM_START) == offset) file_.Read(bytes.data(), bytes.size());
}

uint32 Head::Big16(int64 offset) {
    return Big32(offset) >> 16;
}

uint32 Head::Big32(int64 offset) {
    uint8 bytes[4];
    Read(offset, bytes);
    return uint32{bytes[0]} << 24 | uint32{bytes[1]} << 16 | uint32{bytes[2]} << 8 | bytes[3];
}

uint32 Head::Little16(int64 offset) {
    return Little32(offset) & 0xFFFF;
}

uint32 Head::Little32(int64 offset) {
    uint8 bytes[4];
    Read(offset, bytes);
    return ReadLittle32(bytes);
}

bool ReadPng(Head& head, ImageHeader* header) {
    return head.Has(12, "IHDR") && Store(head.Big32(16), head.Big32(20), header);
}

// Walks the segments up to the one that starts the picture.
bool ReadJpeg(Head& head, ImageHeader* header) {
    for (int64 offset = 2; offset < head.FileSize();) {
        const uint32 marker = head.Big16(offset);
        // Any number of fill bytes may stand before a marker.
        if ((marker & 0xFF) == 0xFF || marker >> 8 != 0xFF) {
            ++offset;
            continue;
        }
        const uint8 type = static_cast<uint8>(marker);
        if (IsStartOfFrame(type)) {
            const bool known = Store(head.Big16(offset + 7), head.Big16(offset + 5), header);
            // The coefficients of all components are kept until they are complete.
            const uint64 components = head.Big16(offset + 9) >> 8;
            if (IsProgressive(type)) header->working_bytes = 2 * components * header->Pixels();
            return known;
        }
        const bool alone = type == 1 || (type >= 0xD0 && type <= 0xD8);
        offset += alone ? 2 : 2 + std::max<int64>(head.Big16(offset + 2), 2);
    }
    return false;
}

bool ReadGif(Head& head, ImageHeader* header) {
    Store(head.Little16(6), head.Little16(8), header);
    return true;
}

bool ReadBmp(Head& head, ImageHeader* header) {
    constexpr uint32 kOldHeader = 12;
    if (head.Little32(14) == kOldHeader) {
        return Store(head.Little16(18), head.Little16(20), header);
    }
    // A negative height means rows from the top.
    const int64 height = static_cast<int32>(head.Little32(22));
    return Store(head.Little32(18), static_cast<uint64>(height < 0 ? -height : height), header);
}

bool ReadWebP(Head& head, ImageHeader* header) {
    constexpr uint32 k24Bits = 0xFFFFFF;
    constexpr uint32 k14Bits = 0x3FFF;
    if (head.Has(12, "VP8X")) {
        return Store((head.Little32(24) & k24Bits) + 1, (head.Little32(27) & k24Bits) + 1, header);
    }
    if (head.Has(12, "VP8L")) {
        const uint32 sizes = head.Little32(21);
        return Store((sizes & k14Bits) + 1, (sizes >> 14 & k14Bits) + 1, header);
    }
    return head.Has(12, "VP8 ") &&
           Store(head.Little16(26) & k14Bits, head.Little16(28) & k14Bits, header);
}

bool ReadAnyMap(Head& head, ImageHeader* header) {
    // Comments run from # to the line's end.
    std::string text(head.Text().substr(2));
    for (size_t start = 0; (start = text.find('#', start)) != std::string::npos;) {
        text.erase(start, text.find_first_of("\r\n", start) - start);
    }
    size_t position = 0;
    const uint64 width = NextNumber(text, &position);
    return Store(width, NextNumber(text, &position), header);
}

bool ReadXpm(Head& head, ImageHeader* header) {
    const std::string_view text = head.Text();
    size_t position = text.find('"');
    if (position == std::string_view::npos) return false;
    const uint64 width = NextNumber(text, &position);
    return Store(width, NextNumber(text, &position), header);
}

bool ReadXbm(Head& head, ImageHeader* header) {
    const std::string_view text = head.Text();
    const auto number_after = [text](std::string_view name) -> uint64 {
        size_t position = text.find(name);
        return position == std::string_view::npos ? 0
                                                  : NextNumber(text, &(position += name.size()));
    };
    return Store(number_after("_width"), number_after("_height"), header);
}

bool ReadWirelessBitmap(Head& head, ImageHeader* header) {
    size_t position = 2;
    const uint64 width = MultiByte(head, &position);
    const uint64 height = MultiByte(head, &position);
    if (!Store(width, height, header)) return false;
    // The format has no signature, but its files have exactly their pixels.
    return (width + 7) / 8 <= static_cast<uint64>(head.FileSize()) / height;
}

}  // namespace kirto::image_header
