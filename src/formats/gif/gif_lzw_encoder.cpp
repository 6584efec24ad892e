#include "formats/gif/gif_lzw_encoder.h"

#include <algorithm>
#include <cstring>

#include "base/byte_order.h"

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
    while (next != end)
        next = follows_runs_ ? AddFollowingRuns(next, end) : AddShort(next, end);
}

// Goes on with the prefix until the end, or until a string has begun after the table was cleared.
// Returns where that is.
inline const uint8* GifLzwEncoder::AddFollowingRuns(const uint8* next, const uint8* end) {
    for (bool cleared = false; !cleared;) {
        if (run_length_ > 0) next = ExtendRun(next, end);
        size_t slot = 0;
        next = ExtendPrefix(next, end, &slot);
        if (next == end) return end;
        Store(slot, prefix_, *next, next_free_);
        if (run_length_ > 0) AddRun(next_free_);
        OutputCode(prefix_, code_size_);
        cleared = next_free_ >> code_size_ != 0 && ++code_size_ > kMaxCodeSize;
        if (cleared) {
            ClearTable();
            taken_ = static_cast<size_t>(end - next);
        } else {
            ++next_free_;
        }
        next = StartString(next, end);
    }
    return next;
}

// The same without a look at runs. All that changes with each string is kept in registers.
inline const uint8* GifLzwEncoder::AddShort(const uint8* next, const uint8* end) {
    Packer packer = packer_;
    uint32 prefix = prefix_;
    uint32 next_free = next_free_;
    uint32 code_size = code_size_;
    bool cleared = false;
    for (; next != end && !cleared; ++next) {
        size_t slot = 0;
        if (Find(prefix, *next, &slot)) {
            prefix = CodeOf(slots_[slot]);
            continue;
        }
        Store(slot, prefix, *next, next_free);
        packer.Add(prefix, code_size);
        if (HasBlocks(packer)) {
            packer_ = packer;
            WriteBlocks();
            packer = packer_;
        }
        cleared = next_free >> code_size != 0 && ++code_size > kMaxCodeSize;
        ++next_free;
        prefix = *next;
    }
    packer_ = packer;
    prefix_ = prefix;
    next_free_ = next_free;
    code_size_ = code_size;
    run_length_ = 0;
    if (cleared) {
        ClearTable();
        next = StartString(next - 1, end);
        taken_ = static_cast<size_t>(end - next) + 1;
    }
    return next;
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
inline void GifLzwEncoder::AddRun(uint32 code) {
    Run& run = runs_[run_index_];
    ++run.longest;
    run.code = static_cast<uint16>(code);
    if (run.longest % kRunStep == 0) run.codes[run.longest / kRunStep] = run.code;
}

// Makes the prefix longer as long as the table has it. Returns where that ends, with the free slot
// for the string that the table has not.
inline const uint8* GifLzwEncoder::ExtendPrefix(const uint8* next, const uint8* end,
                                                size_t* free_slot) {
    uint32 prefix = prefix_;
    for (; next != end; ++next) {
        size_t slot = 0;
        if (!Find(prefix, *next, &slot)) {
            *free_slot = slot;
            break;
        }
        prefix = CodeOf(slots_[slot]);
    }
    prefix_ = prefix;
    return next;
}

// Whether the table has the string. Its slot, or else the free one where it belongs.
inline bool GifLzwEncoder::Find(uint32 prefix, uint8 last, size_t* slot) const {
    // Strings with the same last index never meet, and the multiplication spreads the others. It
    // doesn't wait for the prefix.
    size_t place = (prefix << (kHashBits - kMaxCodeSize)) ^ (size_t{last} * 0x2E35 % slots_.size());
    const uint32 string = String(prefix, last);
    for (;; place = (place + 1) % slots_.size()) {
        const uint32 found = slots_[place];
        *slot = place;
        if ((found & ~(kMaxCode << 8)) == string) return true;
        if (found == empty_slot_) return false;
    }
}

// A code of more than 12 bits is never looked up: the table is cleared at once.
inline void GifLzwEncoder::Store(size_t slot, uint32 prefix, uint8 last, uint32 code) {
    slots_[slot] = String(prefix, last) | (code & kMaxCode) << 8;
}

// Says so, with the code of a table that is full.
void GifLzwEncoder::ClearTable() {
    OutputCode(clear_code_, kMaxCodeSize);
    ResetTable();
}

void GifLzwEncoder::ResetTable() {
    slots_.fill(empty_slot_);
    follows_runs_ = true;
    for (size_t index = 0; index < runs_.size(); ++index) {
        runs_[index].longest = 1;
        runs_[index].code = static_cast<uint16>(index);
    }
    code_size_ = min_code_size_ + 1;
    next_free_ = clear_code_ + 2;
}

inline void GifLzwEncoder::Packer::Add(uint32 code, uint32 code_size) {
    // Numbers of its own, so that the bytes become one store.
    const uint64 waiting = bits | uint64{code} << count;
    uint8* const bytes = next;
    WriteLittle16(bytes, static_cast<int64>(waiting));
    WriteLittle16(bytes + 2, static_cast<int64>(waiting >> 16));
    count += code_size;
    next = bytes + count / 8;
    bits = waiting >> count / 8 * 8;
    count %= 8;
}

void GifLzwEncoder::OutputCode(uint32 code, uint32 size) {
    packer_.Add(code, size);
    if (HasBlocks(packer_)) WriteBlocks();
}

void GifLzwEncoder::FlushCodes(uint32 size) {
    packer_.Add(0, size);
    if (packer_.count > 0) ++packer_.next;
    while (packer_.next != data_.data())
        WriteBlocks();
}

void GifLzwEncoder::WriteBlocks() {
    const size_t size = static_cast<size_t>(packer_.next - data_.data());
    const size_t now = std::min(size, kBlocks * kBlockSize);
    for (size_t start = 0; start < now; start += kBlockSize) {
        const size_t block = std::min(now - start, kBlockSize);
        output_.U8(static_cast<uint8>(block));
        output_.Bytes({data_.data() + start, block});
    }
    std::memmove(data_.data(), data_.data() + now, size - now);
    packer_.next = data_.data() + (size - now);
}

void GifLzwEncoder::Finish() {
    if (prefix_ != kNoPrefix) OutputCode(prefix_, code_size_);
    OutputCode(clear_code_ + 1, code_size_);
    FlushCodes(code_size_);
    output_.U8(0);  // the terminator
}

}  // namespace kirto
