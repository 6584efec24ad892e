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

// Never inlined, as below: the loops over codes need their registers for short strings.
[[gnu::noinline]] void GifLzwDecoder::ExtendLong(String string, uint32 code, uint8 suffix,
                                                 uint32 extended_code) {
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

// Copies the previous string to the target, and up to 7 bytes behind it. Returns where the string
// ends.
inline uint8* GifLzwDecoder::Expand(const Growth& growth, uint8* target) const {
    const uint32 length = LengthOf(growth.previous);
    if (length >= kLong) return ExpandLong(growth.previous_code, target);
    StoreChunk(target, growth.previous);
    return target + length;
}

[[gnu::noinline]] uint8* GifLzwDecoder::ExpandLong(uint32 code, uint8* target) const {
    const LongString* string = &long_strings_[code];
    const uint32 length = string->length;
    uint8* position = target + size_t{(length - 1) / kChunk} * kChunk;
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
    // The next code may be the first free one, which takes more bits where literals take 0 or 1.
    if (next_free_ >> codes_.size != 0) ++codes_.size;
}

// Takes a code: its string becomes the previous one.
template <bool kGrows>
inline void GifLzwDecoder::TakeString(uint32 code, Growth& growth) {
    String string = strings_[code];
    if (kGrows && code < growth.next_free) {
        strings_[growth.next_free] = Extended(growth.previous, growth.previous_code,
                                              static_cast<uint8>(string), growth.next_free);
    } else if (kGrows) {
        // It can only be the string that this very code completes, which begins as the one before.
        code = growth.next_free;
        string = Extended(growth.previous, growth.previous_code,
                          static_cast<uint8>(growth.previous), code);
        strings_[code] = string;
    }
    growth.next_free += kGrows ? 1 : 0;
    growth.previous = string;
    growth.previous_code = code;
}

// Collects the strings of codes until it has taken so many, the room is full, or a code comes that
// is no string's. Returns how many codes it took. There is a previous string. wanted: false keeps
// the table and collects nothing.
int32 GifLzwDecoder::TakeStrings(int32 most, bool wanted) {
    int32 left = most;
    while (left > 0 && collected_size_ <= kRoom && codes_.HasNext()) {
        const int32 taken = wanted ? TakeGroups(left) : 0;
        left -= taken;
        if (taken > 0) continue;
        const uint32 code = codes_.Next();
        if (code - clear_code_ < 2) break;  // that, or the end code
        codes_.Skip();
        --left;
        Growth growth{next_free_, previous_, previous_code_};
        if (next_free_ < kMaxCodes) {
            TakeString<true>(code, growth);
        } else {
            TakeString<false>(code, growth);
        }
        if (wanted) {
            uint8* const target = collected_.data() + collected_size_;
            collected_size_ += static_cast<size_t>(Expand(growth, target) - target);
        }
        next_free_ = growth.next_free;
        previous_ = growth.previous;
        previous_code_ = growth.previous_code;
        if (next_free_ >> codes_.size != 0 && codes_.size < kMaxCodeSize) ++codes_.size;
    }
    return most - left;
}

// The same, several codes at a time, for as long as these are strings' and of one size, and 8 bytes
// of data are left. Returns how many codes it took.
int32 GifLzwDecoder::TakeGroups(int32 most) {
    switch (codes_.size) {
        case 3:
            return TakeGroupsOf<3, true>(most);
        case 4:
            return TakeGroupsOf<4, true>(most);
        case 5:
            return TakeGroupsOf<5, true>(most);
        case 6:
            return TakeGroupsOf<6, true>(most);
        case 7:
            return TakeGroupsOf<7, true>(most);
        case 8:
            return TakeGroupsOf<8, true>(most);
        case 9:
            return TakeGroupsOf<9, true>(most);
        case 10:
            return TakeGroupsOf<10, true>(most);
        case 11:
            return TakeGroupsOf<11, true>(most);
        default:
            return next_free_ < kMaxCodes ? TakeGroupsOf<kMaxCodeSize, true>(most)
                                          : TakeGroupsOf<kMaxCodeSize, false>(most);
    }
}

// What is known beforehand takes no work in the loop: the size of codes, and whether the table
// grows.
template <uint32 kSize, bool kGrows>
int32 GifLzwDecoder::TakeGroupsOf(int32 most) {
    constexpr uint32 kMask = (uint32{1} << kSize) - 1;
    constexpr uint32 kLastFree = kGrows ? kMask + 1 - kGroup : kMaxCodes;
    const uint32 clear_code = clear_code_;
    const uint8* const data = codes_.data;
    const size_t last_bit = codes_.bit_count < 64 ? 0 : codes_.bit_count - 56;  // of a load's first
    const uint8* const last_target = collected_.data() + kRoom;
    size_t bit = codes_.bit;
    Growth growth{next_free_, previous_, previous_code_};
    uint8* target = collected_.data() + collected_size_;
    int32 left = most;
    while (left >= kGroup && growth.next_free <= kLastFree && target <= last_target &&
           bit < last_bit) {
        const uint64 bits = ReadLittle64(data + bit / 8) >> bit % 8;
        const auto code = [bits](uint32 i) {
            return static_cast<uint32>(bits >> i * kSize) & kMask;
        };
        const auto is_string = [&](uint32 i) { return code(i) - clear_code >= 2; };
        if (!(is_string(0) && is_string(1) && is_string(2) && is_string(3))) break;
        bit += size_t{kGroup} * kSize;
        left -= kGroup;
        const auto take = [&](uint32 i) {
            TakeString<kGrows>(code(i), growth);
            target = Expand(growth, target);
        };
        take(0);
        take(1);
        take(2);
        take(3);
    }
    codes_.bit = bit;
    next_free_ = growth.next_free;
    if (next_free_ > kMask && kSize < kMaxCodeSize) ++codes_.size;
    previous_ = growth.previous;
    previous_code_ = growth.previous_code;
    collected_size_ = static_cast<size_t>(target - collected_.data());
    return most - left;
}

void GifLzwDecoder::Deliver(GifIndexWriter& writer) {
    writer.Write(collected_.data(), collected_size_);
    collected_size_ = 0;
}

}  // namespace kirto
