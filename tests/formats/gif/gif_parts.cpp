#include "formats/gif/gif_parts.h"

#include <algorithm>

namespace kirto::test {

namespace {

using Bytes = std::vector<uint8>;

// Reads on from a position; past the end everything is 0 and nothing is at its end.
class Cursor {
  public:
    explicit Cursor(const Bytes& file) : file_(file) {}

    uint8 Peek(size_t ahead = 0) const {
        return position_ + ahead < file_.size() ? file_[position_ + ahead] : uint8{0};
    }
    Bytes Take(size_t count) {
        Bytes bytes;
        for (size_t i = 0; i < count; ++i)
            bytes.push_back(Peek(i));
        position_ += count;
        return bytes;
    }
    Bytes TakeTable(uint8 packed) {
        return (packed & 0x80) != 0 ? Take(size_t{3} << ((packed & 7) + 1)) : Bytes{};
    }
    // The sub-blocks from the position on, with sizes and terminator.
    Bytes TakeSubBlocks() {
        const size_t start = position_;
        while (Peek() != 0)
            position_ += size_t{1} + Peek();
        const size_t size = position_ + 1 - start;
        position_ = start;
        return Take(size);
    }
    bool AtLastByte() const { return position_ + 1 == file_.size(); }

  private:
    const Bytes& file_;
    size_t position_ = 0;
};

void Append(Bytes* bytes, const Bytes& more) {
    bytes->insert(bytes->end(), more.begin(), more.end());
}

GifImageParts TakeImage(Cursor* cursor) {
    GifImageParts image;
    image.control = cursor->Take(8);
    image.descriptor = cursor->Take(10);
    image.table = cursor->TakeTable(image.descriptor[9]);
    image.image_data = cursor->Take(1);
    image.code_size = image.image_data[0];
    Append(&image.image_data, cursor->TakeSubBlocks());
    for (size_t i = 1; image.image_data[i] != 0; i += image.block_sizes.back() + 1) {
        const size_t size = image.image_data[i];
        image.block_sizes.push_back(size);
        const auto start = image.image_data.begin() + static_cast<std::ptrdiff_t>(i) + 1;
        image.data.insert(image.data.end(), start, start + static_cast<std::ptrdiff_t>(size));
    }
    return image;
}

}  // namespace

GifParts TakeApart(const std::vector<uint8>& file) {
    GifParts parts;
    Cursor cursor(file);
    parts.header = cursor.Take(13);
    parts.table = cursor.TakeTable(parts.header[10]);
    if (cursor.Peek() == 0x21 && cursor.Peek(1) == 0xFF) parts.loop = cursor.Take(19);
    if (cursor.Peek() == 0x21 && cursor.Peek(1) == 0xFE) {
        parts.comment = cursor.Take(2);
        Append(&parts.comment, cursor.TakeSubBlocks());
    }
    while (cursor.Peek() == 0x21 && cursor.Peek(1) == 0xF9 && cursor.Peek(8) == ',')
        parts.images.push_back(TakeImage(&cursor));
    parts.complete = cursor.Peek() == ';' && cursor.AtLastByte();
    return parts;
}

std::vector<SizedCode> CodesOf(const std::vector<uint8>& data, int32 min_code_size) {
    const int32 clear = 1 << min_code_size;
    int32 size = min_code_size + 1;
    int32 next_free = clear + 2;
    bool first = true;
    std::vector<SizedCode> codes;
    size_t bit = 0;
    while (bit + static_cast<size_t>(size) <= data.size() * 8) {
        int32 code = 0;
        for (int32 i = 0; i < size; ++i, ++bit)
            code |= (data[bit / 8] >> (bit % 8) & 1) << i;
        codes.push_back({code, size});
        if (code == clear + 1) break;
        if (code == clear) {
            size = min_code_size + 1;
            next_free = clear + 2;
            first = true;
        } else if (first) {
            first = false;
        } else if (next_free < 4096 && ++next_free > (1 << size) - 1 && size < 12) {
            ++size;
        }
    }
    return codes;
}

}  // namespace kirto::test
