#include "formats/gif/gif_lzw_decoder.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "base/byte_order.h"
#include "base/debug_line.h"
#include "formats/gif/gif_index_writer.h"

namespace kirto {

namespace {

// Bytes of a string that are copied at once.
constexpr uint32 kChunk = 8;

// A chunk as a number with the one byte in it; the others are zero.
uint64 ByteOfChunk(uint32 position, uint8 byte) {
    const bool little = std::endian::native == std::endian::little;
    return uint64{byte} << 8 * (little ? position : kChunk - 1 - position);
}

}  // namespace

GifLzwDecoder::GifLzwDecoder(const GifImageData& data, int32 min_code_size)
    : data_(data),
      min_code_size_(static_cast<uint32>(min_code_size)),
      clear_code_(uint32{1} << min_code_size),
      end_code_(clear_code_ + 1),
      codes_(AtLeast8Bytes(), data.bytes.size()) {
    for (uint32 code = 0; code < clear_code_; ++code)
        SetByte(code, code);
    for (uint32 byte = 0; byte < 256; ++byte)
        SetByte(kByteStrings + byte, byte);
    ResetTable();
}

// The data, or a copy of it where it is shorter than what is read at once.
const uint8* GifLzwDecoder::AtLeast8Bytes() {
    if (data_.bytes.size() >= short_data_.size()) return data_.bytes.data();
    std::copy(data_.bytes.begin(), data_.bytes.end(), short_data_.begin());
    return short_data_.data();
}

GifLzwDecoder::Codes::Codes(const uint8* bytes, size_t count)
    : data(bytes), last_read(count > 8 ? count - 8 : 0), bit_count(count * 8) {}

inline uint32 GifLzwDecoder::Codes::Next() const {
    const size_t start = std::min(bit / 8, last_read);
    const uint64 bits = ReadLittle64(data + start) >> (bit - start * 8);
    return static_cast<uint32>(bits) & ((uint32{1} << size) - 1);
}

void GifLzwDecoder::SetByte(uint32 string, uint32 byte) {
    first_[string] = static_cast<uint8>(byte);
    strings_[string] = {ByteOfChunk(0, first_[string]), 0, 1};
}

// The string start, which is that of start_code, and the suffix behind it.
inline GifLzwDecoder::String GifLzwDecoder::Extended(const String& start, uint32 start_code,
                                                     uint8 suffix) {
    const uint16 length = static_cast<uint16>(start.length + 1);
    const uint32 in_tail = start.length % kChunk;
    const uint64 tail = ByteOfChunk(in_tail, suffix);
    if (in_tail == 0) return {tail, static_cast<uint16>(start_code), length};
    return {start.tail | tail, start.before, length};
}

// Copies the string to the target, and up to 7 bytes behind it. Returns where the string ends.
inline uint8* GifLzwDecoder::Expand(const String& string, uint8* target) const {
    const uint32 length = string.length;
    uint8* position = target + (length - 1) / kChunk * kChunk;
    std::memcpy(position, &string.tail, kChunk);
    for (const String* rest = &string; position != target;) {
        rest = &strings_[rest->before];
        position -= kChunk;
        std::memcpy(position, &rest->tail, kChunk);
    }
    return target + length;
}

void GifLzwDecoder::ResetTable() {
    codes_.size = min_code_size_ + 1;
    next_free_ = clear_code_ + 2;
    previous_ = kNoString;
}

bool GifLzwDecoder::Decode(GifIndexWriter& writer, Work& work, int64 file_size) {
    bool cleared = false;  // nothing but clear codes since the last string
    for (int32 codes_left = 0;;) {
        if (codes_left == 0) {
            if (file_size > 0) {
                work.Report(data_.position + static_cast<int64>(codes_.bit / 8), file_size);
            }
            if (work.StopRequested()) return false;
            codes_left = kCodesAtOnce;
        }
        if (previous_ != kNoString) {
            codes_left -= TakeStrings(codes_left, !writer.Full());
            Deliver(writer);
            if (codes_left == 0) continue;
        }
        const uint32 code = codes_.HasNext() ? codes_.Next() : end_code_;
        if (code == end_code_) {
            if (!cleared) return codes_.HasNext() || data_.complete;
            DebugLine("GifLoad::ReadGifImageData() - Premature end_code or error\n");
            return false;
        }
        if (code == clear_code_) {
            codes_.Skip();
            ResetTable();
            cleared = true;
            --codes_left;
        } else if (previous_ == kNoString) {
            TakeFirstString(code);
            Deliver(writer);
            cleared = false;
            --codes_left;
        }
    }
}

void GifLzwDecoder::TakeFirstString(uint32 code) {
    codes_.Skip();
    previous_ = kByteStrings + (code & 0xFF);
    collected_[collected_size_++] = static_cast<uint8>(code);
    // The next code may be the first free one, which takes more bits where literals take 0 or 1.
    if (next_free_ >> codes_.size != 0) ++codes_.size;
}

// Collects the strings of codes until it has taken so many, the room is full, or a code comes that
// is no string's. Returns how many codes it took. There is a previous string. wanted: false keeps
// the table and collects nothing.
int32 GifLzwDecoder::TakeStrings(int32 most, bool wanted) {
    // Local: for all the compiler knows a byte that is stored may be part of any member.
    Codes codes = codes_;
    uint32 next_free = next_free_;
    uint32 previous = previous_;
    const uint32 clear_code = clear_code_;
    uint8* target = collected_.data() + collected_size_;
    const uint8* const last_target = collected_.data() + kRoom;
    int32 left = most;
    for (; left > 0 && target <= last_target && codes.HasNext(); --left) {
        uint32 code = codes.Next();
        if (code - clear_code < 2) break;  // that, or the end code
        codes.Skip();
        const String& start = strings_[previous];
        // A code that is not in the table yet can only be the string that this very code completes,
        // and that one begins as the string before.
        first_[next_free] = first_[previous];
        code = std::min(code, next_free);
        strings_[next_free] = Extended(start, previous, first_[code]);
        previous = code;
        if (next_free < kMaxCodes) ++next_free;
        if (next_free >> codes.size != 0 && codes.size < kMaxCodeSize) ++codes.size;
        if (wanted) target = Expand(strings_[code], target);
    }
    codes_ = codes;
    next_free_ = next_free;
    previous_ = previous;
    collected_size_ = static_cast<size_t>(target - collected_.data());
    return most - left;
}

void GifLzwDecoder::Deliver(GifIndexWriter& writer) {
    writer.Write(collected_.data(), collected_size_);
    collected_size_ = 0;
}

}  // namespace kirto
