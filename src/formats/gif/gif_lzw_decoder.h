#pragma once

#include <array>

#include "base/types.h"
#include "base/work.h"
#include "formats/gif/gif_image_data.h"

namespace kirto {

class GifPixelWriter;

// Decodes the LZW data of one GIF image. Codes are taken least significant bit first. A stream that
// never clears its table goes on with the full table of 4096 codes.
class GifLzwDecoder {
  public:
    // Code sizes from 2 to this one can be decoded; pixel values are cut to 8 bits.
    static constexpr int32 kMaxMinCodeSize = 11;

    // data: outlives this. min_code_size: 2 to kMaxMinCodeSize.
    GifLzwDecoder(const GifImageData& data, int32 min_code_size);

    // Hands every pixel's index to the writer. True when the data ended with the end code or was
    // complete; false when it was not, when the work was stopped, or when a clear code is followed
    // by the end. The work is told how far this is in a file of that size.
    bool Decode(GifPixelWriter& writer, Work& work, int64 file_size);

  private:
    static constexpr int32 kMaxCodes = 4096;
    static constexpr int32 kReadError = -1;
    static constexpr int32 kNoString = -1;
    // Codes between two looks at the work: well below a millisecond.
    static constexpr int32 kCodesAtOnce = 256;

    // The string of a code: the string of prefix, followed by the byte suffix.
    struct String {
        uint16 prefix = 0;
        uint16 length = 0;
        uint8 first = 0;
        uint8 suffix = 0;
    };

    void ResetTable();
    void Refill();
    int32 NextCode();
    int32 FirstCodeAfterClear();
    static int32 StartString(int32 code);
    void AddString(int32 prefix, uint8 suffix);
    void Emit(int32 string, GifPixelWriter& writer);

    const GifImageData& data_;
    const int32 min_code_size_;
    const int32 clear_code_;
    const int32 end_code_;
    int32 code_size_ = 0;
    int32 largest_code_ = 0;
    int32 next_free_ = 0;

    // Codes, followed by a one-byte string for each byte value: the first code of a run may not be
    // a literal, and then its low byte counts.
    std::array<String, kMaxCodes + 256> strings_;
    std::array<uint8, kMaxCodes + 1> expanded_;

    uint64 bit_buffer_ = 0;
    int32 bit_count_ = 0;
    size_t position_ = 0;  // of the first byte that is not in the buffer
};

}  // namespace kirto
