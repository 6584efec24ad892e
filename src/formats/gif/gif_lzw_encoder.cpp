#include "formats/gif/gif_lzw_encoder.h"

namespace kirto {

GifLzwEncoder::GifLzwEncoder(BFile& file, int32 min_code_size)
    : file_(file),
      min_code_size_(min_code_size),
      clear_code_(1 << min_code_size),
      end_code_(clear_code_ + 1),
      next_free_(clear_code_ + 2),
      code_size_(min_code_size + 1),
      largest_code_((1 << code_size_) - 1) {
    ResetHashtable();
    const uint8 size_byte = static_cast<uint8>(min_code_size);
    file_.Write(&size_byte, 1);
    OutputCode(clear_code_, code_size_);
}

void GifLzwEncoder::Add(uint8 index) {
    const int32 known = CheckHashtable(prefix_, index);
    if (known >= 0) {
        prefix_ = known;
        return;
    }
    AddToHashtable(prefix_, index);
    OutputCode(prefix_, code_size_);
    if (next_free_ > largest_code_) {
        ++code_size_;
        if (code_size_ > kMaxCodeSize) {
            OutputCode(clear_code_, kMaxCodeSize);
            code_size_ = min_code_size_ + 1;
            ResetHashtable();
            next_free_ = clear_code_ + 1;
        }
        largest_code_ = (1 << code_size_) - 1;
    }
    prefix_ = index;
    ++next_free_;
}

void GifLzwEncoder::Finish() {
    if (prefix_ != kNoPrefix) OutputCode(prefix_, code_size_);
    OutputCode(end_code_, code_size_);
    FlushCodes(code_size_);
    const uint8 terminator = 0;
    file_.Write(&terminator, 1);
}

void GifLzwEncoder::ResetHashtable() {
    slots_.fill(kEmptySlot);
    prefixes_.fill(0);
    suffixes_.fill(0);
}

int32 GifLzwEncoder::Slot(int32 prefix, uint8 suffix) {
    return ((suffix << 8) ^ prefix) % kTableSize;
}

void GifLzwEncoder::AddToHashtable(int32 prefix, uint8 suffix) {
    int32 slot = Slot(prefix, suffix);
    while (slots_[static_cast<size_t>(slot)] != kEmptySlot)
        slot = NextSlot(slot);
    const size_t code = static_cast<size_t>(next_free_);
    slots_[static_cast<size_t>(slot)] = static_cast<uint16>(code);
    prefixes_[code] = static_cast<uint16>(prefix);
    suffixes_[code] = suffix;
}

// The code of the string, or -1. Without a prefix the string is the suffix alone.
int32 GifLzwEncoder::CheckHashtable(int32 prefix, uint8 suffix) const {
    if (prefix == kNoPrefix) return suffix;
    int32 slot = Slot(prefix, suffix);
    for (;;) {
        const uint16 code = slots_[static_cast<size_t>(slot)];
        if (code == kEmptySlot) return -1;
        if (prefixes_[code] == prefix && suffixes_[code] == suffix) return code;
        slot = NextSlot(slot);
    }
}

// Packs codes least significant bit first.
void GifLzwEncoder::OutputCode(int32 code, int32 size) {
    bit_buffer_ |= static_cast<uint32>(code) << bit_count_;
    bit_count_ += size;
    while (bit_count_ > 7)
        AppendByte();
}

// Fills up with a code's worth of zero bits: a decoder whose code size has already grown for the
// end code still reads it whole.
void GifLzwEncoder::FlushCodes(int32 size) {
    bit_count_ += size;
    while (bit_count_ > 0)
        AppendByte();
    if (pending_ > 0) WriteBlock();
}

void GifLzwEncoder::AppendByte() {
    block_[static_cast<size_t>(++pending_)] = static_cast<uint8>(bit_buffer_);
    bit_buffer_ >>= 8;
    bit_count_ -= 8;
    if (pending_ == 255) WriteBlock();
}

void GifLzwEncoder::WriteBlock() {
    block_[0] = static_cast<uint8>(pending_);
    file_.Write(block_.data(), static_cast<size_t>(pending_) + 1);
    pending_ = 0;
}

}  // namespace kirto
