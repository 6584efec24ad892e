#include "formats/gif/gif_lzw_decoder.h"

#include "base/debug_line.h"
#include "formats/gif/gif_pixel_writer.h"

namespace kirto {

GifLzwDecoder::GifLzwDecoder(const GifImageData& data, int32 min_code_size)
    : data_(data),
      min_code_size_(min_code_size),
      clear_code_(1 << min_code_size),
      end_code_(clear_code_ + 1) {
    for (int32 code = 0; code < kMaxCodes; ++code) {
        const uint8 byte = static_cast<uint8>(code);
        strings_[static_cast<size_t>(code)] = {0, 1, byte, byte};
    }
    for (int32 byte = 0; byte < 256; ++byte) {
        strings_[static_cast<size_t>(kMaxCodes + byte)] = strings_[static_cast<size_t>(byte)];
    }
    ResetTable();
}

void GifLzwDecoder::ResetTable() {
    code_size_ = min_code_size_ + 1;
    largest_code_ = (1 << code_size_) - 1;
    next_free_ = clear_code_ + 2;
}

bool GifLzwDecoder::Decode(GifPixelWriter& writer, Work& work, int64 file_size) {
    int32 previous = kNoString;
    for (int32 codes_left = 0;; --codes_left) {
        if (codes_left == 0) {
            work.Report(data_.position + static_cast<int64>(position_), file_size);
            if (work.StopRequested()) return false;
            codes_left = kCodesAtOnce;
        }
        int32 code = NextCode();
        if (code == kReadError) return false;
        if (code == end_code_) break;
        if (code == clear_code_) {
            code = FirstCodeAfterClear();
            if (code == kReadError || code == end_code_) {
                DebugLine("GifLoad::ReadGifImageData() - Premature end_code or error\n");
                return false;
            }
            previous = kNoString;
        }
        if (previous == kNoString) {
            previous = StartString(code);
        } else if (code < next_free_) {
            AddString(previous, strings_[static_cast<size_t>(code)].first);
            previous = code;
        } else {
            // Not in the table yet: it can only be the string that this very code completes.
            const int32 completed = next_free_;
            AddString(previous, strings_[static_cast<size_t>(previous)].first);
            previous = completed;
        }
        Emit(previous, writer);
    }
    return true;
}

// Clear codes in a row count as one.
int32 GifLzwDecoder::FirstCodeAfterClear() {
    int32 code = 0;
    do {
        ResetTable();
        code = NextCode();
    } while (code == clear_code_);
    return code;
}

int32 GifLzwDecoder::StartString(int32 code) {
    return kMaxCodes + (code & 0xFF);
}

void GifLzwDecoder::AddString(int32 prefix, uint8 suffix) {
    if (next_free_ >= kMaxCodes) return;
    const String& start = strings_[static_cast<size_t>(prefix)];
    strings_[static_cast<size_t>(next_free_)] = {
        static_cast<uint16>(prefix), static_cast<uint16>(start.length + 1), start.first, suffix};
    ++next_free_;
    if (next_free_ > largest_code_ && code_size_ < 12) {
        ++code_size_;
        largest_code_ = (1 << code_size_) - 1;
    }
}

void GifLzwDecoder::Emit(int32 string, GifPixelWriter& writer) {
    // A few bytes of a hostile file expand to thousands of pixels that no row takes.
    if (writer.Full()) return;
    const size_t length = strings_[static_cast<size_t>(string)].length;
    size_t left = length;
    while (left > 0) {
        const String& entry = strings_[static_cast<size_t>(string)];
        expanded_[--left] = entry.suffix;
        string = entry.prefix;
    }
    writer.Write(expanded_.data(), length);
}

int32 GifLzwDecoder::NextCode() {
    if (bit_count_ < code_size_) Refill();
    if (bit_count_ < code_size_) return data_.complete ? end_code_ : kReadError;
    const int32 code = static_cast<int32>(bit_buffer_ & ((uint64{1} << code_size_) - 1));
    bit_buffer_ >>= code_size_;
    bit_count_ -= code_size_;
    return code;
}

// As many whole bytes as fit.
void GifLzwDecoder::Refill() {
    for (; bit_count_ <= 56 && position_ < data_.bytes.size(); bit_count_ += 8)
        bit_buffer_ |= static_cast<uint64>(data_.bytes[position_++]) << bit_count_;
}

}  // namespace kirto
