#include "flc_writer.h"

#include <algorithm>
#include <fstream>

namespace kirto::bench {

namespace {

constexpr int32 kFlcMagic = 0xAF12;
constexpr int32 kFrameRecord = 0xF1FA;
constexpr int32 kChunkColor256 = 4;
constexpr int32 kChunkDelta = 7;
constexpr int32 kChunkCopy = 16;

using Bytes = std::vector<uint8>;

void Add16(Bytes& bytes, int32 value) {
    bytes.push_back(static_cast<uint8>(value & 255));
    bytes.push_back(static_cast<uint8>(value >> 8 & 255));
}

void Add32(Bytes& bytes, size_t value) {
    Add16(bytes, static_cast<int32>(value & 0xFFFF));
    Add16(bytes, static_cast<int32>(value >> 16 & 0xFFFF));
}

void AddChunk(Bytes& record, int32 type, const Bytes& data) {
    const size_t padding = data.size() % 2;
    Add32(record, data.size() + padding + 6);
    Add16(record, type);
    record.insert(record.end(), data.begin(), data.end());
    record.insert(record.end(), padding, 0);
}

Bytes ColorChunk(const IndexedAnimation& animation) {
    Bytes data;
    Add16(data, 1);       // packets
    Add16(data, 0 << 8);  // skips none, and 0 stands for 256
    for (const rgb_color& color : animation.colors)
        data.insert(data.end(), {color.red, color.green, color.blue});
    return data;
}

// The packets of one row, in pairs of pixels. Rows have an even width.
class DeltaRow {
  public:
    DeltaRow(const uint8* before, const uint8* after, int32 width) : after_(after) {
        for (int32 x = 0; x < width;) {
            if (Same(before, x)) {
                x += 2;
                continue;
            }
            const int32 start = x;
            while (x < width && !Same(before, x) && x - start < 2 * kMostPairs)
                x += 2;
            AddPacket(start, x);
        }
    }

    int32 Packets() const { return packets_; }
    const Bytes& Data() const { return data_; }

  private:
    static constexpr int32 kMostPairs = 127;
    static constexpr int32 kMostSkipped = 254;  // pixels

    bool Same(const uint8* before, int32 x) const {
        return std::equal(after_ + x, after_ + x + 2, before + x);
    }

    void AddPacket(int32 start, int32 end) {
        // What is too far away is reached by painting a pair that stays as it is.
        while (start - written_ > kMostSkipped)
            AddPairs(written_ + kMostSkipped, written_ + kMostSkipped + 2);
        AddPairs(start, end);
    }

    void AddPairs(int32 start, int32 end) {
        ++packets_;
        data_.push_back(static_cast<uint8>(start - written_));
        written_ = end;
        const int32 pairs = (end - start) / 2;
        if (pairs > 1 && std::equal(after_ + start + 2, after_ + end, after_ + start)) {
            data_.push_back(static_cast<uint8>(-pairs));
            end = start + 2;
        } else {
            data_.push_back(static_cast<uint8>(pairs));
        }
        data_.insert(data_.end(), after_ + start, after_ + end);
    }

    const uint8* after_;
    int32 packets_ = 0;
    int32 written_ = 0;  // pixels behind the last packet
    Bytes data_;
};

Bytes DeltaChunk(const IndexedImage& before, const IndexedImage& after) {
    Bytes rows;
    int32 changed = 0;
    int32 skipped = 0;
    for (int32 y = 0; y < after.height; ++y) {
        const size_t place = static_cast<size_t>(y) * static_cast<size_t>(after.width);
        const DeltaRow row(&before.indices[place], &after.indices[place], after.width);
        if (row.Packets() == 0) {
            ++skipped;
            continue;
        }
        if (skipped > 0) Add16(rows, -skipped);
        Add16(rows, row.Packets());
        rows.insert(rows.end(), row.Data().begin(), row.Data().end());
        ++changed;
        skipped = 0;
    }
    Bytes data;
    Add16(data, changed);
    data.insert(data.end(), rows.begin(), rows.end());
    return data;
}

Bytes Record(const IndexedAnimation& animation, size_t i) {
    Bytes chunks;
    if (i == 0) {
        AddChunk(chunks, kChunkColor256, ColorChunk(animation));
        AddChunk(chunks, kChunkCopy, animation.images[0].indices);
    } else {
        AddChunk(chunks, kChunkDelta, DeltaChunk(animation.images[i - 1], animation.images[i]));
    }
    Bytes record;
    Add32(record, chunks.size() + 16);
    Add16(record, kFrameRecord);
    Add16(record, i == 0 ? 2 : 1);
    record.resize(16);
    record.insert(record.end(), chunks.begin(), chunks.end());
    return record;
}

Bytes Header(const IndexedAnimation& animation, size_t records_size) {
    Bytes header;
    Add32(header, records_size + 128);
    Add16(header, kFlcMagic);
    Add16(header, static_cast<int32>(animation.images.size()));
    Add16(header, animation.width);
    Add16(header, animation.height);
    Add16(header, 8);  // bits a pixel
    Add16(header, 3);
    Add32(header, 50);  // milliseconds
    header.resize(80);
    Add32(header, 128);  // where the first frame begins
    header.resize(128);
    return header;
}

}  // namespace

bool WriteFlc(const IndexedAnimation& animation, const std::string& path) {
    Bytes records;
    for (size_t i = 0; i < animation.images.size(); ++i) {
        const Bytes record = Record(animation, i);
        records.insert(records.end(), record.begin(), record.end());
    }
    const Bytes header = Header(animation, records.size());
    std::ofstream stream(path, std::ios::binary);
    for (const Bytes* part : {&header, static_cast<const Bytes*>(&records)})
        stream.write(reinterpret_cast<const char*>(part->data()),
                     static_cast<std::streamsize>(part->size()));
    stream.close();
    return stream.good();
}

}  // namespace kirto::bench
