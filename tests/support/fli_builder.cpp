#include "support/fli_builder.h"

namespace kirto::test {

namespace {

constexpr size_t kHeaderSize = 128;
constexpr size_t kRecordHeaderSize = 16;
constexpr size_t kChunkHeaderSize = 6;

void Put8(std::vector<uint8>* bytes, int64 value) {
    bytes->push_back(static_cast<uint8>(value));
}

void Put16(std::vector<uint8>* bytes, int64 value) {
    Put8(bytes, value);
    Put8(bytes, value >> 8);
}

void PutAll(std::vector<uint8>* bytes, const std::vector<uint8>& data) {
    bytes->insert(bytes->end(), data.begin(), data.end());
}

void PutPackets(std::vector<uint8>* bytes, const FliLine& packets, bool with_skips) {
    for (const FliPacket& packet : packets) {
        if (with_skips) Put8(bytes, packet.skip);
        Put8(bytes, packet.count);
        PutAll(bytes, packet.data);
    }
}

// A row as BRUN packets: equal neighbours become runs, the others literals.
FliLine PackRow(const uint8* row, size_t width) {
    FliLine packets;
    for (size_t x = 0; x < width;) {
        size_t run = 1;
        while (x + run < width && run < 127 && row[x + run] == row[x])
            ++run;
        if (run > 1) {
            packets.push_back({0, static_cast<int32>(run), {row[x]}});
        } else if (packets.empty() || packets.back().count >= 0 || packets.back().count == -128) {
            packets.push_back({0, -1, {row[x]}});
        } else {
            --packets.back().count;
            packets.back().data.push_back(row[x]);
        }
        x += run;
    }
    return packets;
}

}  // namespace

FliBuilder::FliBuilder(int32 width, int32 height, uint16 magic, int32 speed)
    : width_(width), bytes_(kHeaderSize) {
    Patch16(4, magic);
    Patch16(8, width);
    Patch16(10, height);
    Patch16(12, 8);
    Patch16(16, speed);
}

FliBuilder& FliBuilder::FrameCount(int32 count) {
    Patch16(6, count);
    return *this;
}

FliBuilder& FliBuilder::Record(uint16 type) {
    record_ = bytes_.size();
    chunk_count_ = 0;
    bytes_.resize(bytes_.size() + kRecordHeaderSize);
    Patch32(record_, kRecordHeaderSize);
    Patch16(record_ + 4, type);
    return FrameCount(++record_count_);
}

FliBuilder& FliBuilder::RecordSize(int64 size) {
    Patch32(record_, size);
    return *this;
}

FliBuilder& FliBuilder::ChunkCount(int32 count) {
    Patch16(record_ + 6, count);
    return *this;
}

FliBuilder& FliBuilder::Color256(const std::vector<FliColorPacket>& packets) {
    return Color(4, packets);
}

FliBuilder& FliBuilder::Color64(const std::vector<FliColorPacket>& packets) {
    return Color(11, packets);
}

FliBuilder& FliBuilder::Color(int32 type, const std::vector<FliColorPacket>& packets) {
    std::vector<uint8> data;
    Put16(&data, static_cast<int64>(packets.size()));
    for (const FliColorPacket& packet : packets) {
        Put8(&data, packet.skip);
        Put8(&data, static_cast<int64>(packet.colors.size()));
        for (const uint32 color : packet.colors) {
            for (const int shift : {16, 8, 0})
                Put8(&data, color >> shift);
        }
    }
    return Chunk(type, data);
}

FliBuilder& FliBuilder::Lc(int32 first_line, const std::vector<FliLine>& lines) {
    std::vector<uint8> data;
    Put16(&data, first_line);
    Put16(&data, static_cast<int64>(lines.size()));
    for (const FliLine& line : lines) {
        Put8(&data, static_cast<int64>(line.size()));
        PutPackets(&data, line, true);
    }
    return Chunk(12, data);
}

FliBuilder& FliBuilder::Brun(const std::vector<FliLine>& rows) {
    std::vector<uint8> data;
    for (const FliLine& row : rows) {
        Put8(&data, static_cast<int64>(row.size()));
        PutPackets(&data, row, false);
    }
    return Chunk(15, data);
}

FliBuilder& FliBuilder::BrunOf(const std::vector<uint8>& indices) {
    const size_t width = static_cast<size_t>(width_);
    std::vector<FliLine> rows;
    for (size_t start = 0; start + width <= indices.size(); start += width)
        rows.push_back(PackRow(&indices[start], width));
    return Brun(rows);
}

FliBuilder& FliBuilder::Copy(const std::vector<uint8>& indices) {
    return Chunk(16, indices);
}

FliBuilder& FliBuilder::Delta(const std::vector<FliDeltaLine>& lines) {
    std::vector<uint8> data;
    Put16(&data, static_cast<int64>(lines.size()));
    for (const FliDeltaLine& line : lines) {
        for (const int32 word : line.words)
            Put16(&data, word);
        Put16(&data, static_cast<int64>(line.packets.size()));
        PutPackets(&data, line.packets, true);
    }
    return Chunk(7, data);
}

FliBuilder& FliBuilder::Black() {
    return Chunk(13, {});
}

FliBuilder& FliBuilder::Mini(const std::vector<uint8>& data) {
    return Chunk(18, data);
}

FliBuilder& FliBuilder::Chunk(int32 type, const std::vector<uint8>& data) {
    chunk_ = bytes_.size();
    bytes_.resize(bytes_.size() + kChunkHeaderSize);
    Patch16(chunk_ + 4, type);
    PutAll(&bytes_, data);
    ChunkSize(static_cast<int64>(bytes_.size() - chunk_));
    RecordSize(static_cast<int64>(bytes_.size() - record_));
    return ChunkCount(++chunk_count_);
}

FliBuilder& FliBuilder::ChunkSize(int64 size) {
    Patch32(chunk_, size);
    return *this;
}

FliBuilder& FliBuilder::Bytes(const std::vector<uint8>& bytes) {
    PutAll(&bytes_, bytes);
    return *this;
}

void FliBuilder::Patch16(size_t offset, int64 value) {
    bytes_[offset] = static_cast<uint8>(value);
    bytes_[offset + 1] = static_cast<uint8>(value >> 8);
}

void FliBuilder::Patch32(size_t offset, int64 value) {
    Patch16(offset, value);
    Patch16(offset + 2, value >> 16);
}

}  // namespace kirto::test
