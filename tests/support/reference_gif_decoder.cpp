#include "support/reference_gif_decoder.h"

#include <algorithm>

namespace kirto::test {

namespace {

constexpr int32 kNoMoreBits = -1;

// Takes bytes off the front; after the first short take everything fails.
class GifBytes {
  public:
    explicit GifBytes(std::vector<uint8> bytes) : bytes_(std::move(bytes)) {}

    bool Ok() const { return ok_; }
    int32 Take() {
        if (position_ >= bytes_.size()) ok_ = false;
        return ok_ ? bytes_[position_++] : 0;
    }
    int32 Take16() {
        const int32 low = Take();
        return low + 256 * Take();
    }
    std::vector<uint8> Take(int32 count) {
        std::vector<uint8> taken;
        for (int32 i = 0; i < count && ok_; ++i)
            taken.push_back(static_cast<uint8>(Take()));
        return taken;
    }
    std::vector<uint32> TakeTable(int32 packed) {
        std::vector<uint32> table;
        for (int32 left = 2 << (packed & 7); left > 0; --left) {
            const int32 red = Take();
            const int32 green = Take();
            const int32 blue = Take();
            table.push_back(static_cast<uint32>(red * 65536 + green * 256 + blue));
        }
        return table;
    }
    std::vector<uint8> Rest() const {
        return {bytes_.begin() + static_cast<std::ptrdiff_t>(position_), bytes_.end()};
    }

  private:
    std::vector<uint8> bytes_;
    size_t position_ = 0;
    bool ok_ = true;
};

// All bits of an image's sub-blocks, one an element, each byte's lowest bit first.
struct Bits {
    std::vector<bool> bits;
    size_t position = 0;
    bool terminated = false;  // the zero-length sub-block was there

    explicit Bits(GifBytes* bytes) {
        for (;;) {
            const int32 size = bytes->Take();
            terminated = bytes->Ok() && size == 0;
            if (!bytes->Ok() || size == 0) return;
            const std::vector<uint8> block = bytes->Take(size);
            if (!bytes->Ok()) return;
            for (const uint8 byte : block)
                for (int bit = 0; bit < 8; ++bit)
                    bits.push_back((byte >> bit & 1) != 0);
        }
    }

    int32 Take(int32 count) {
        if (bits.size() - position < static_cast<size_t>(count)) return kNoMoreBits;
        int32 value = 0;
        for (int32 bit = 0; bit < count; ++bit)
            value += bits[position++] ? 1 << bit : 0;
        return value;
    }
};

using String = std::vector<uint8>;

// One string a code; the two in the middle, clear and end, stand empty.
std::vector<String> FreshTable(int32 min_code_size) {
    std::vector<String> table;
    for (int32 code = 0; code < 1 << min_code_size; ++code)
        table.push_back({static_cast<uint8>(code)});
    table.resize(table.size() + 2);
    return table;
}

// The rows of an image in the order of its data.
std::vector<int32> RowOrder(int32 height, bool interlaced) {
    std::vector<int32> rows;
    if (!interlaced) {
        for (int32 row = 0; row < height; ++row)
            rows.push_back(row);
        return rows;
    }
    for (int32 row = 0; row < height; row += 8)
        rows.push_back(row);
    for (int32 row = 4; row < height; row += 8)
        rows.push_back(row);
    for (int32 row = 2; row < height; row += 4)
        rows.push_back(row);
    for (int32 row = 1; row < height; row += 2)
        rows.push_back(row);
    return rows;
}

std::vector<int32> PlacePixels(const ReferenceImage& image, const std::vector<uint8>& delivered) {
    std::vector<int32> indices(static_cast<size_t>(image.width) * static_cast<size_t>(image.height),
                               -1);
    size_t next = 0;
    for (const int32 row : RowOrder(image.height, image.interlaced)) {
        for (int32 column = 0; column < image.width && next < delivered.size(); ++column) {
            indices[static_cast<size_t>(row) * static_cast<size_t>(image.width) +
                    static_cast<size_t>(column)] = delivered[next++];
        }
    }
    return indices;
}

void SkipSubBlocks(GifBytes* bytes) {
    while (bytes->Ok()) {
        const int32 size = bytes->Take();
        if (size == 0) return;
        bytes->Take(size);
    }
}

// Reads an extension; of a control block the fields go into what the next image starts from.
void TakeExtension(GifBytes* bytes, ReferenceImage* control) {
    if (bytes->Take() == 0xF9) {
        bytes->Take();
        const int32 packed = bytes->Take();
        control->disposal = packed >> 2 & 7;
        control->delay = bytes->Take16();
        const int32 transparent = bytes->Take();
        control->transparent = (packed & 1) != 0 ? transparent : -1;
    }
    SkipSubBlocks(bytes);
}

// Completes an image from its descriptor on. False when it can't be decoded.
bool TakeImage(GifBytes* bytes, const ReferenceGif& gif, ReferenceImage* image) {
    image->x = bytes->Take16();
    image->y = bytes->Take16();
    image->width = bytes->Take16();
    image->height = bytes->Take16();
    const int32 packed = bytes->Take();
    image->interlaced = (packed & 0x40) != 0;
    image->has_local_table = (packed & 0x80) != 0;
    image->table = image->has_local_table ? bytes->TakeTable(packed) : gif.table;
    image->code_size = bytes->Take();
    if (!bytes->Ok() || image->code_size < 1 || image->code_size > 11) return false;
    const ReferencePixels pixels = DecodeReferenceLzw(bytes->Rest(), std::max(image->code_size, 2));
    if (!pixels.success) return false;
    image->indices = PlacePixels(*image, pixels.indices);
    *bytes = GifBytes(pixels.leftover);
    return true;
}

}  // namespace

ReferencePixels DecodeReferenceLzw(const std::vector<uint8>& data, int32 min_code_size) {
    GifBytes bytes(data);
    Bits bits(&bytes);
    ReferencePixels result;
    result.leftover = bytes.Rest();
    const int32 clear = 1 << min_code_size;
    const int32 end = clear + 1;
    std::vector<String> table = FreshTable(min_code_size);
    int32 code_size = min_code_size + 1;
    String previous;
    const auto next_code = [&] {
        const int32 code = bits.Take(code_size);
        return code == kNoMoreBits && bits.terminated ? end : code;
    };
    for (int32 code = next_code(); code != end; code = next_code()) {
        const bool cleared = code == clear;
        while (code == clear) {
            table = FreshTable(min_code_size);
            code_size = min_code_size + 1;
            previous.clear();
            code = next_code();
        }
        if (code == kNoMoreBits || (cleared && code == end)) return result;

        String string;
        if (previous.empty()) {
            string = {static_cast<uint8>(code)};
        } else {
            const bool known = static_cast<size_t>(code) < table.size();
            string = known ? table[static_cast<size_t>(code)] : previous;
            if (!known) string.push_back(previous.front());
            if (table.size() < 4096) {
                previous.push_back(string.front());
                table.push_back(previous);
            }
            if (code_size < 12 && table.size() == size_t{1} << code_size) ++code_size;
        }
        result.indices.insert(result.indices.end(), string.begin(), string.end());
        previous = string;
    }
    result.success = true;
    return result;
}

ReferenceGif DecodeReferenceGif(const std::vector<uint8>& data) {
    ReferenceGif gif;
    GifBytes bytes(data);
    bytes.Take(6);
    gif.width = bytes.Take16();
    gif.height = bytes.Take16();
    const int32 packed = bytes.Take();
    bytes.Take(2);
    if ((packed & 0x80) != 0) gif.table = bytes.TakeTable(packed);
    ReferenceImage next;
    while (bytes.Ok()) {
        const int32 introducer = bytes.Take();
        if (introducer == ';') gif.complete = bytes.Ok();
        if (introducer == '!') {
            TakeExtension(&bytes, &next);
        } else if (introducer == ',') {
            if (!TakeImage(&bytes, gif, &next)) break;
            gif.images.push_back(next);
            next = ReferenceImage();
        } else if (introducer != 0) {
            break;
        }
    }
    return gif;
}

}  // namespace kirto::test
