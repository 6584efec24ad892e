#pragma once

#include <array>

#include "base/types.h"
#include "base/work.h"
#include "formats/gif/gif_image_data.h"

namespace kirto {

class GifIndexWriter;

// Decodes the LZW data of one GIF image. Codes are taken least significant bit first. A stream that
// never clears its table goes on with the full table of 4096 codes.
class GifLzwDecoder {
  public:
    // Code sizes from 0 to this one can be decoded; pixel values are cut to 8 bits.
    static constexpr int32 kMaxMinCodeSize = 11;

    // data: outlives this. min_code_size: 0 to kMaxMinCodeSize.
    GifLzwDecoder(const GifImageData& data, int32 min_code_size);
    GifLzwDecoder(const GifLzwDecoder&) = delete;
    GifLzwDecoder& operator=(const GifLzwDecoder&) = delete;

    // Hands every pixel's index to the writer. True when the data ended with the end code or was
    // complete; false when it was not, when the work was stopped, or when a clear code is followed
    // by the end. The work is told how far this is in a file of that size; nothing with 0.
    bool Decode(GifIndexWriter& writer, Work& work, int64 file_size);

  private:
    static constexpr uint32 kMaxCodes = 4096;
    static constexpr uint32 kMaxCodeSize = 12;
    static constexpr uint32 kNoString = ~uint32{0};
    // Codes between two looks at the work: well below a millisecond.
    static constexpr int32 kCodesAtOnce = 256;
    // Indices that are collected before the writer gets them; one string may run over.
    static constexpr size_t kRoom = size_t{16} * 1024;

    // The string of a code, kept so that it is copied from its end to its start 8 bytes at a time:
    // the string of another code, whose length is a multiple of 8, and 1 to 8 bytes behind it.
    struct String {
        uint64 tail;    // these bytes as they lie in memory; what is left is zero
        uint16 before;  // the other code; only of strings longer than 8
        uint16 length;
    };

    // The data, and where in it the next code is, in bits; the first byte's lowest is bit 0.
    struct Codes {
        // bytes: at least 8, though only count of them are data.
        Codes(const uint8* bytes, size_t count);

        bool HasNext() const { return bit + size <= bit_count; }
        uint32 Next() const;  // only while there is one
        void Skip() { bit += size; }

        const uint8* data;
        size_t last_read;  // the last byte that 8 bytes are read from
        size_t bit_count;
        size_t bit = 0;
        uint32 size = 0;
    };

    const uint8* AtLeast8Bytes();
    void SetByte(uint32 string, uint32 byte);
    static String Extended(const String& start, uint32 start_code, uint8 suffix);
    uint8* Expand(const String& string, uint8* target) const;
    void ResetTable();
    int32 TakeStrings(int32 most, bool wanted);
    void TakeFirstString(uint32 code);
    void Deliver(GifIndexWriter& writer);

    const GifImageData& data_;
    std::array<uint8, 8> short_data_{};  // zeros behind data of fewer bytes
    const uint32 min_code_size_;
    const uint32 clear_code_;
    const uint32 end_code_;
    Codes codes_;
    uint32 next_free_ = 0;
    uint32 previous_ = kNoString;  // the string that the last code stood for

    // The codes' strings; one that is written but never kept, for a full table; and a one-byte
    // string for each byte value: the first code of a run may not be a literal, and then its low
    // byte counts. A string is written before it is read.
    static constexpr uint32 kByteStrings = kMaxCodes + 1;
    std::array<String, kByteStrings + 256> strings_;
    std::array<uint8, kByteStrings + 256> first_;  // the strings' first bytes: asked for most

    // The indices that the writer has not got yet. Copies may run 7 bytes over a string's end.
    std::array<uint8, kRoom + kMaxCodes + 8> collected_;
    size_t collected_size_ = 0;
};

}  // namespace kirto
