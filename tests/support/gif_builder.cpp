#include "support/gif_builder.h"

#include <algorithm>
#include <bit>

namespace kirto::test {

namespace {

// n of a table of 2^(n+1) entries.
uint8 TableField(const std::vector<uint32>& table) {
    return static_cast<uint8>(std::bit_width(table.size()) - 2);
}

}  // namespace

GifBuilder::GifBuilder(int32 width, int32 height, const std::vector<uint32>& table,
                       uint8 background, const std::string& signature) {
    bytes_.assign(signature.begin(), signature.end());
    Put16(width);
    Put16(height);
    bytes_.push_back(table.empty() ? 0 : static_cast<uint8>(0x80 | TableField(table)));
    bytes_.push_back(background);
    bytes_.push_back(0);
    PutTable(table);
}

GifBuilder& GifBuilder::Loop(int32 count) {
    const std::string name = "NETSCAPE2.0";
    Bytes({0x21, 0xFF, 11});
    bytes_.insert(bytes_.end(), name.begin(), name.end());
    Bytes({3, 1});
    Put16(count);
    return Bytes({0});
}

GifBuilder& GifBuilder::Control(int32 disposal, int32 delay, int32 transparent) {
    Bytes({0x21, 0xF9, 4, static_cast<uint8>(disposal << 2 | (transparent >= 0 ? 1 : 0))});
    Put16(delay);
    return Bytes({static_cast<uint8>(std::max(transparent, 0)), 0});
}

GifBuilder& GifBuilder::Comment(const std::string& text) {
    Bytes({0x21, 0xFE});
    return Bytes(SubBlocks({text.begin(), text.end()}));
}

GifBuilder& GifBuilder::Add(const Image& image) {
    const int32 min = std::max(image.min_code_size, 2);
    const int32 clear = 1 << min;
    // The table is empty after a clear; this many codes later its size would grow.
    const int32 run = clear - 2;
    std::vector<int32> codes;
    for (size_t i = 0; i < image.indices.size(); ++i) {
        if (i % static_cast<size_t>(run) == 0) codes.push_back(clear);
        codes.push_back(image.indices[i]);
    }
    codes.push_back(clear + 1);
    return AddCodes(image, codes);
}

GifBuilder& GifBuilder::AddCodes(const Image& image, const std::vector<int32>& codes) {
    return AddData(image, PackCodes(std::max(image.min_code_size, 2), codes));
}

GifBuilder& GifBuilder::AddData(const Image& image, const std::vector<uint8>& data) {
    PutDescriptor(image);
    bytes_.push_back(static_cast<uint8>(image.min_code_size));
    return Bytes(SubBlocks(data));
}

GifBuilder& GifBuilder::Bytes(const std::vector<uint8>& bytes) {
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
    return *this;
}

GifBuilder& GifBuilder::Trailer() {
    return Bytes({0x3B});
}

std::vector<uint8> GifBuilder::SubBlocks(const std::vector<uint8>& data) {
    std::vector<uint8> blocks;
    for (size_t start = 0; start < data.size(); start += 255) {
        const size_t size = std::min<size_t>(255, data.size() - start);
        blocks.push_back(static_cast<uint8>(size));
        for (size_t i = 0; i < size; ++i)
            blocks.push_back(data[start + i]);
    }
    blocks.push_back(0);
    return blocks;
}

std::vector<uint8> GifBuilder::PackCodes(int32 min_code_size, const std::vector<int32>& codes) {
    const int32 clear = 1 << min_code_size;
    int32 size = min_code_size + 1;
    int32 next = clear + 2;
    bool first = true;
    uint64 buffer = 0;
    int32 bits = 0;
    std::vector<uint8> bytes;
    for (const int32 code : codes) {
        buffer |= static_cast<uint64>(code) << bits;
        for (bits += size; bits >= 8; bits -= 8, buffer >>= 8) {
            bytes.push_back(static_cast<uint8>(buffer));
        }
        if (code == clear) {
            size = min_code_size + 1;
            next = clear + 2;
            first = true;
        } else if (first) {
            first = false;
        } else if (next < 4096 && ++next > (1 << size) - 1 && size < 12) {
            ++size;
        }
    }
    if (bits > 0) bytes.push_back(static_cast<uint8>(buffer));
    return bytes;
}

void GifBuilder::Put16(int32 value) {
    bytes_.push_back(static_cast<uint8>(value));
    bytes_.push_back(static_cast<uint8>(value >> 8));
}

void GifBuilder::PutTable(const std::vector<uint32>& table) {
    for (const uint32 color : table) {
        for (const int shift : {16, 8, 0})
            bytes_.push_back(static_cast<uint8>(color >> shift));
    }
}

void GifBuilder::PutDescriptor(const Image& image) {
    bytes_.push_back(0x2C);
    Put16(image.x);
    Put16(image.y);
    Put16(image.width);
    Put16(image.height);
    const uint8 local =
        image.local_table.empty() ? 0 : static_cast<uint8>(0x80 | TableField(image.local_table));
    bytes_.push_back(static_cast<uint8>(local | (image.interlaced ? 0x40 : 0)));
    PutTable(image.local_table);
}

}  // namespace kirto::test
