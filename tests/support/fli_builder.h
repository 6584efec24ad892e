// Builds FLI and FLC files byte by byte, sound or broken on purpose.
#pragma once

#include <vector>

#include "base/types.h"

namespace kirto::test {

// Pixels to skip, the signed count and the bytes behind it, as they stand in a chunk that draws
// packets. BRUN packets have no skip.
struct FliPacket {
    int32 skip = 0;
    int32 count = 0;
    std::vector<uint8> data;
};
using FliLine = std::vector<FliPacket>;

// A line of a DELTA chunk, and the words that stand before its packet count.
struct FliDeltaLine {
    std::vector<int32> words;
    FliLine packets;
};

// Entries from where the packet before ended plus skip on; 0xRRGGBB, or six bits a component in
// COLOR 64.
struct FliColorPacket {
    int32 skip = 0;
    std::vector<uint32> colors;
};

// Fluent writer of FLI and FLC bytes. Nothing is checked: what a test asks for is what it gets.
// Sizes and counts of the record and chunk begun last grow with what is added; a method that sets
// one overwrites what has been counted so far.
class FliBuilder {
  public:
    static constexpr uint16 kFli = 0xAF11;
    static constexpr uint16 kFlc = 0xAF12;
    static constexpr uint16 kFrame = 0xF1FA;
    static constexpr uint16 kSkipped = 0x00A1;

    // speed: 1/70 s in an FLI, milliseconds in an FLC.
    FliBuilder(int32 width, int32 height, uint16 magic = kFlc, int32 speed = 100);

    // The header's count of frames; otherwise that of the records begun so far.
    FliBuilder& FrameCount(int32 count);

    // Begins a record; the chunks that follow are its.
    FliBuilder& Record(uint16 type = kFrame);
    FliBuilder& RecordSize(int64 size);
    FliBuilder& ChunkCount(int32 count);

    FliBuilder& Color256(const std::vector<FliColorPacket>& packets);
    FliBuilder& Color64(const std::vector<FliColorPacket>& packets);
    FliBuilder& Lc(int32 first_line, const std::vector<FliLine>& lines);
    FliBuilder& Brun(const std::vector<FliLine>& rows);
    // The indices of whole rows, packed into runs and literals.
    FliBuilder& BrunOf(const std::vector<uint8>& indices);
    FliBuilder& Copy(const std::vector<uint8>& indices);
    FliBuilder& Delta(const std::vector<FliDeltaLine>& lines);
    FliBuilder& Black();
    FliBuilder& Mini(const std::vector<uint8>& data);
    // A chunk of any type.
    FliBuilder& Chunk(int32 type, const std::vector<uint8>& data);
    FliBuilder& ChunkSize(int64 size);

    // Bytes that belong to no record.
    FliBuilder& Bytes(const std::vector<uint8>& bytes);

    const std::vector<uint8>& Data() const { return bytes_; }
    operator std::vector<uint8>() const { return bytes_; }

  private:
    void Patch16(size_t offset, int64 value);
    void Patch32(size_t offset, int64 value);
    FliBuilder& Color(int32 type, const std::vector<FliColorPacket>& packets);

    const int32 width_;
    std::vector<uint8> bytes_;
    int32 record_count_ = 0;
    size_t record_ = 0;  // offset of the record begun last
    size_t chunk_ = 0;   // offset of the chunk begun last
    int32 chunk_count_ = 0;
};

}  // namespace kirto::test
