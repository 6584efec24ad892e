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
    // Codes between two looks at the work: well below a millisecond.
    static constexpr int32 kCodesAtOnce = 256;
    // Codes of any size that 8 bytes hold from any bit of the first byte on.
    static constexpr int32 kGroup = 4;
    // Indices that are collected before the writer gets them; the strings of a group may run over.
    static constexpr size_t kRoom = size_t{16} * 1024;

    // A string as a number: its first 7 bytes, the first one lowest, and in the highest byte its
    // length, which is kLong for all that are longer. So one load tells all of most strings. 0 is
    // no string.
    using String = uint64;
    static constexpr uint32 kLong = 8;

    // A string of more than 7 bytes, kept so that it is copied from its end to its start 8 bytes at
    // a time: the string of another code, whose length is a multiple of 8, and 1 to 8 bytes behind
    // it.
    struct LongString {
        uint64 tail;    // these bytes, the first one lowest; what is left is zero
        uint16 before;  // the other code; only of strings longer than 8
        uint16 length;
    };

    // What taking a string changes, but for the table. In a loop it is not in this object: for all
    // the compiler knows a byte that is stored may be part of any member.
    struct Growth {
        uint32 next_free;
        String previous;
        uint32 previous_code;
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
    static String StringOf(uint32 byte);
    static uint32 LengthOf(String string) { return static_cast<uint32>(string >> 56); }
    String Extended(String string, uint32 code, uint8 suffix, uint32 extended_code);
    void ExtendLong(String string, uint32 code, uint8 suffix, uint32 extended_code);
    uint8* Expand(const Growth& growth, uint8* target) const;
    uint8* ExpandLong(uint32 code, uint8* target) const;
    void ResetTable();
    int32 TakeStrings(int32 most, bool wanted);
    int32 TakeGroups(int32 most);
    template <uint32 kSize, bool kGrows>
    int32 TakeGroupsOf(int32 most);
    template <bool kGrows>
    void TakeString(uint32 code, Growth& growth);
    void TakeFirstString(uint32 code);
    void Deliver(GifIndexWriter& writer);

    const GifImageData& data_;
    std::array<uint8, 8> short_data_{};  // zeros behind data of fewer bytes
    const uint32 min_code_size_;
    const uint32 clear_code_;
    const uint32 end_code_;
    Codes codes_;
    uint32 next_free_ = 0;
    String previous_ = 0;       // that the last code stood for; none at the start of a run
    uint32 previous_code_ = 0;  // that code, where the string is long

    // The codes' strings, and where they are long, what they are. A long string is written before
    // it is read.
    std::array<String, kMaxCodes> strings_{};
    std::array<LongString, kMaxCodes> long_strings_;

    // The indices that the writer has not got yet. Copies may run 7 bytes over a string's end.
    std::array<uint8, kRoom + size_t{kGroup} * kMaxCodes + 8> collected_;
    size_t collected_size_ = 0;
};

}  // namespace kirto
