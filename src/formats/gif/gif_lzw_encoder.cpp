#include "formats/gif/gif_lzw_encoder.h"

#include <algorithm>
#include <cstring>

namespace kirto {

namespace {

// Where indices equal to that one end.
const uint8* EndOfRun(const uint8* next, const uint8* end, uint8 index) {
    const uint64 equal = index * uint64{0x0101010101010101};
    for (; end - next >= 8; next += 8) {
        uint64 group = 0;
        std::memcpy(&group, next, sizeof(group));
        if (group != equal) break;
    }
    while (next != end && *next == index)
        ++next;
    return next;
}

}  // namespace

GifLzwEncoder::GifLzwEncoder(ByteWriter& output, int32 min_code_size)
    : output_(output),
      min_code_size_(static_cast<uint32>(min_code_size)),
      clear_code_(uint32{1} << min_code_size),
      next_free_(clear_code_ + 2),
      code_size_(min_code_size_ + 1),
      empty_slot_(clear_code_ << 20) {
    ResetTable();
    output_.U8(static_cast<uint8>(min_code_size));
    OutputCode(clear_code_, code_size_);
}

void GifLzwEncoder::Add(std::span<const uint8> indices) {
    const uint8* next = indices.data();
    const uint8* const end = next + indices.size();
    if (next == end) return;
    // Where strings are short, looking at runs costs more than it saves.
    const size_t strings = next_free_ - clear_code_ - 2;
    if (strings >= kFewStrings && taken_ < strings * kLongStrings) follows_runs_ = false;
    taken_ += indices.size();
    if (prefix_ == kNoPrefix) next = StartString(next, end);
    for (;;) {
        if (run_length_ > 0) next = ExtendRun(next, end);
        size_t slot = 0;
        next = ExtendPrefix(next, end, &slot);
        if (next == end) return;
        // A code of more than 12 bits is never looked up: the table is cleared at once.
        slots_[slot] = prefix_ << 20 | uint32{*next} << 12 | (next_free_ & 0xFFF);
        if (run_length_ > 0) AddRun(next_free_);
        OutputCode(prefix_, code_size_);
        if (next_free_ >> code_size_ != 0 && ++code_size_ > kMaxCodeSize) {
            OutputCode(clear_code_, kMaxCodeSize);
            ResetTable();
            taken_ = static_cast<size_t>(end - next);
        } else {
            ++next_free_;
        }
        next = StartString(next, end);
    }
}

// The string of one index. Returns where it ends.
inline const uint8* GifLzwEncoder::StartString(const uint8* next, const uint8* end) {
    prefix_ = *next;
    run_index_ = *next;
    // Most strings are known not to be a longer run by their second index.
    const bool may_go_on = next + 1 == end || next[1] == *next;
    run_length_ = follows_runs_ && may_go_on ? 1 : 0;
    return next + 1;
}

// Makes the prefix, which is a run, longer without a look-up for each index: as long as the run in
// front of it and the table have it, or nearly. Returns where that ends. Afterwards run_length_ is
// above 0 only if the prefix is the table's longest run and the next index would make it longer, or
// if the run goes on to the end.
const uint8* GifLzwEncoder::ExtendRun(const uint8* next, const uint8* end) {
    const uint8* const run_end = EndOfRun(next, end, run_index_);
    const Run& run = runs_[run_index_];
    const uint32 length = run_length_ + static_cast<uint32>(run_end - next);
    const uint32 reached = length < run.longest ? length / kRunStep * kRunStep : run.longest;
    if (reached > run_length_) {
        prefix_ = reached == run.longest ? run.code : run.codes[reached / kRunStep];
        next += reached - run_length_;
    }
    if (length > run.longest) {
        run_length_ = run.longest;
    } else {
        run_length_ = run_end == end ? length : 0;
    }
    return next;
}

// The table's longest run of the index has become longer by one.
void GifLzwEncoder::AddRun(uint32 code) {
    Run& run = runs_[run_index_];
    ++run.longest;
    run.code = static_cast<uint16>(code);
    if (run.longest % kRunStep == 0) run.codes[run.longest / kRunStep] = run.code;
}

// Makes the prefix longer as long as the table has it. Returns where that ends, with the free slot
// for the string that the table has not.
const uint8* GifLzwEncoder::ExtendPrefix(const uint8* next, const uint8* end, size_t* free_slot) {
    uint32 prefix = prefix_;
    for (; next != end; ++next) {
        const uint32 string = prefix << 8 | *next;
        size_t slot = Slot(string);
        while (slots_[slot] >> 12 != string) {
            if (slots_[slot] == empty_slot_) {
                prefix_ = prefix;
                *free_slot = slot;
                return next;
            }
            slot = (slot + 1) % slots_.size();
        }
        prefix = slots_[slot] & 0xFFF;
    }
    prefix_ = prefix;
    return next;
}

inline uint32 GifLzwEncoder::Slot(uint32 string) {
    // The multiplication spreads neighboring strings, of which there are many.
    return (string * 0x9E3779B1U) >> (32 - kHashBits);
}

void GifLzwEncoder::ResetTable() {
    slots_.fill(empty_slot_);
    follows_runs_ = true;
    for (uint16 index = 0; index < runs_.size(); ++index) {
        runs_[index].longest = 1;
        runs_[index].code = index;
    }
    code_size_ = min_code_size_ + 1;
    next_free_ = clear_code_ + 2;
}

// Packs codes least significant bit first.
void GifLzwEncoder::OutputCode(uint32 code, uint32 size) {
    bit_buffer_ |= uint64{code} << bit_count_;
    bit_count_ += size;
    if (bit_count_ < 32) return;
    for (size_t i = 0; i < 4; ++i)
        data_[data_size_ + i] = static_cast<uint8>(bit_buffer_ >> 8 * i);
    bit_buffer_ >>= 32;
    bit_count_ -= 32;
    data_size_ += 4;
    if (data_size_ >= kBlocks * kBlockSize) WriteBlocks();
}

void GifLzwEncoder::FlushCodes(uint32 size) {
    bit_count_ += size;
    for (uint32 bits = 0; bits < bit_count_; bits += 8)
        data_[data_size_++] = static_cast<uint8>(bit_buffer_ >> bits);
    while (data_size_ > 0)
        WriteBlocks();
}

void GifLzwEncoder::WriteBlocks() {
    const size_t now = std::min(data_size_, kBlocks * kBlockSize);
    for (size_t start = 0; start < now; start += kBlockSize) {
        const size_t block = std::min(now - start, kBlockSize);
        output_.U8(static_cast<uint8>(block));
        output_.Bytes({data_.data() + start, block});
    }
    data_size_ -= now;
    std::memmove(data_.data(), data_.data() + now, data_size_);
}

void GifLzwEncoder::Finish() {
    if (prefix_ != kNoPrefix) OutputCode(prefix_, code_size_);
    OutputCode(clear_code_ + 1, code_size_);
    FlushCodes(code_size_);
    output_.U8(0);  // the terminator
}

}  // namespace kirto
