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

// The lowest byte comes first.
void StoreChunk(uint8* target, uint64 bytes) {
    if constexpr (std::endian::native == std::endian::big) bytes = __builtin_bswap64(bytes);
    std::memcpy(target, &bytes, kChunk);
}

}  // namespace

GifLzwDecoder::GifLzwDecoder(const GifImageData& data, int32 min_code_size)
    : data_(data),
      min_code_size_(static_cast<uint32>(min_code_size)),
      clear_code_(uint32{1} << min_code_size),
      end_code_(clear_code_ + 1),
      codes_(AtLeast8Bytes(), data.bytes.size()) {
    for (uint32 code = 0; code < clear_code_; ++code)
        strings_[code] = StringOf(code);
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

// The string of one byte, the lowest of those.
GifLzwDecoder::String GifLzwDecoder::StringOf(uint32 byte) {
    return uint64{1} << 56 | (byte & 0xFF);
}

// The string, which is that of the code, and the suffix behind it.
inline GifLzwDecoder::String GifLzwDecoder::Extended(String string, uint32 code, uint8 suffix,
                                                     uint32 extended_code) {
    const uint32 length = LengthOf(string);
    constexpr String kOneLonger = uint64{1} << 56;
    if (length < kLong - 1) return string + kOneLonger + (uint64{suffix} << 8 * length);
    ExtendLong(string, code, suffix, extended_code);
    return length < kLong ? string + kOneLonger : string;
}

void GifLzwDecoder::ExtendLong(String string, uint32 code, uint8 suffix, uint32 extended_code) {
    LongString& extended = long_strings_[extended_code];
    if (LengthOf(string) < kLong) {
        extended = {string << 8 >> 8 | uint64{suffix} << 56, 0, kLong};
        return;
    }
    const LongString& start = long_strings_[code];
    const uint16 length = static_cast<uint16>(start.length + 1);
    const uint32 in_tail = start.length % kChunk;
    const uint64 tail = uint64{suffix} << 8 * in_tail;
    if (in_tail == 0) {
        extended = {tail, static_cast<uint16>(code), length};
    } else {
        extended = {start.tail | tail, start.before, length};
    }
}

// Copies the string, which is that of the code, to the target, and up to 7 bytes behind it. Returns
// where the string ends.
inline uint8* GifLzwDecoder::Expand(String string, uint32 code, uint8* target) const {
    const uint32 length = LengthOf(string);
    if (length >= kLong) return ExpandLong(code, target);
    StoreChunk(target, string);
    return target + length;
}

uint8* GifLzwDecoder::ExpandLong(uint32 code, uint8* target) const {
    const LongString* string = &long_strings_[code];
    const uint32 length = string->length;
    uint8* position = target + (length - 1) / kChunk * kChunk;
    StoreChunk(position, string->tail);
    while (position != target) {
        string = &long_strings_[string->before];
        position -= kChunk;
        StoreChunk(position, string->tail);
    }
    return target + length;
}

void GifLzwDecoder::ResetTable() {
    codes_.size = min_code_size_ + 1;
    next_free_ = clear_code_ + 2;
    previous_ = 0;
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
        if (previous_ != 0) {
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
        } else if (previous_ == 0) {
            TakeFirstString(code);
            Deliver(writer);
            cleared = false;
            --codes_left;
        }
    }
}

void GifLzwDecoder::TakeFirstString(uint32 code) {
    codes_.Skip();
    previous_ = StringOf(code);
    collected_[collected_size_++] = static_cast<uint8>(code);
}

// Collects the strings of codes until it has taken so many, the room is full, or a code comes that
// is no string's. Returns how many codes it took. There is a previous string. wanted: false keeps
// the table and collects nothing.
int32 GifLzwDecoder::TakeStrings(int32 most, bool wanted) {
    int32 left = most;
    const auto has_room = [&] { return collected_size_ <= kRoom; };
    while (left > 0 && has_room() && codes_.HasNext()) {
        if (wanted) left -= TakeGroups(left);
        if (left == 0 || !has_room() || !codes_.HasNext()) break;
        uint32 code = codes_.Next();
        if (code - clear_code_ < 2) break;  // that, or the end code
        codes_.Skip();
        --left;
        // A code that is not in the table yet can only be the string that this very code completes,
        // and that one begins as the string before.
        code = std::min(code, next_free_);
        const String begins = code == next_free_ ? previous_ : strings_[code];
        strings_[next_free_] =
            Extended(previous_, previous_code_, static_cast<uint8>(begins), next_free_);
        previous_ = strings_[code];
        previous_code_ = code;
        if (next_free_ < kMaxCodes) ++next_free_;
        if (next_free_ >> codes_.size != 0 && codes_.size < kMaxCodeSize) ++codes_.size;
        if (!wanted) continue;
        uint8* const target = collected_.data() + collected_size_;
        collected_size_ += static_cast<size_t>(Expand(previous_, code, target) - target);
    }
    return most - left;
}

// The same, several codes at a time, for as long as these are of one size, their strings wanted,
// and 8 bytes of data left. Returns how many codes it took.
int32 GifLzwDecoder::TakeGroups(int32 most) {
    switch (codes_.size) {
        case 3:
            return TakeGroupsOf<3>(most);
        case 4:
            return TakeGroupsOf<4>(most);
        case 5:
            return TakeGroupsOf<5>(most);
        case 6:
            return TakeGroupsOf<6>(most);
        case 7:
            return TakeGroupsOf<7>(most);
        case 8:
            return TakeGroupsOf<8>(most);
        case 9:
            return TakeGroupsOf<9>(most);
        case 10:
            return TakeGroupsOf<10>(most);
        case 11:
            return TakeGroupsOf<11>(most);
        default:
            return TakeGroupsOf<kMaxCodeSize>(most);
    }
}

// A size that is known beforehand takes no work in the loop.
template <uint32 kSize>
int32 GifLzwDecoder::TakeGroupsOf(int32 most) {
    constexpr uint32 kMask = (uint32{1} << kSize) - 1;
    const uint32 clear_code = clear_code_;
    const uint8* const data = codes_.data;
    const size_t last_bit = codes_.bit_count < 64 ? 0 : codes_.bit_count - 56;  // of a load's first
    const bool full = next_free_ == kMaxCodes;
    const uint32 growth = full ? 0 : 1;
    const uint32 last_free = full ? kMaxCodes : kMask + 1 - kGroup;
    uint32 next_free = next_free_;
    String previous = previous_;
    uint32 previous_code = previous_code_;
    size_t bit = codes_.bit;
    uint8* target = collected_.data() + collected_size_;
    const uint8* const last_target = collected_.data() + kRoom;
    int32 left = most;
    bool only_strings = true;
    while (only_strings && left >= kGroup && next_free <= last_free && target <= last_target &&
           bit < last_bit) {
        uint64 bits = ReadLittle64(data + bit / 8) >> bit % 8;
        for (int32 i = 0; i < kGroup; ++i) {
            uint32 code = static_cast<uint32>(bits) & kMask;
            only_strings = code - clear_code >= 2;
            if (!only_strings) break;
            bits >>= kSize;
            bit += kSize;
            --left;
            String string = strings_[code];
            if (code < next_free) {
                strings_[next_free] =
                    Extended(previous, previous_code, static_cast<uint8>(string), next_free);
            } else {
                code = next_free;
                string = Extended(previous, previous_code, static_cast<uint8>(previous), code);
                strings_[code] = string;
            }
            previous = string;
            previous_code = code;
            next_free += growth;
            target = Expand(string, code, target);
        }
    }
    codes_.bit = bit;
    next_free_ = next_free;
    if (next_free > kMask && kSize < kMaxCodeSize) ++codes_.size;
    previous_ = previous;
    previous_code_ = previous_code;
    collected_size_ = static_cast<size_t>(target - collected_.data());
    return most - left;
}

void GifLzwDecoder::Deliver(GifIndexWriter& writer) {
    writer.Write(collected_.data(), collected_size_);
    collected_size_ = 0;
}

}  // namespace kirto
