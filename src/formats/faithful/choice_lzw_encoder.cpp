#include "formats/faithful/choice_lzw_encoder.h"

#include <algorithm>

namespace kirto {

std::span<const uint8> ChoiceLzwEncoder::Encode(const Image& image, size_t shorter,
                                                const Limits& limits) {
    Begin(image, shorter);
    const size_t pixels = image.indices.size();
    complete_ = TakeUntil(pixels, true, limits);
    while (complete_ && !parser_.AtEnd()) {
        filled_ = true;
        ClearTable(shorter);
        complete_ = TakeUntil(pixels, true, limits);
    }
    return End();
}

std::span<const uint8> ChoiceLzwEncoder::EncodeCleared(const Image& image, size_t shorter,
                                                       std::span<const size_t> clearings,
                                                       const Limits& limits) {
    Begin(image, shorter);
    complete_ = true;
    for (size_t i = 0; complete_ && i <= clearings.size(); ++i) {
        if (i > 0) ClearTable(shorter);
        const size_t end = i < clearings.size() ? clearings[i] : image.indices.size();
        complete_ = TakeUntil(end, false, limits);
    }
    filled_ = !clearings.empty();
    return End();
}

void ChoiceLzwEncoder::Begin(const Image& image, size_t shorter) {
    image_ = image;
    bytes_.clear();
    bit_buffer_ = 0;
    bit_count_ = 0;
    filled_ = false;
    pace_ = {};
    parser_.Start(image, shorter, 0);
    Put({static_cast<uint16>(1U << image.min_code_size), static_cast<uint16>(parser_.CodeSize())});
}

bool ChoiceLzwEncoder::TakeUntil(size_t end, bool full_ends, const Limits& limits) {
    const size_t pixels = image_.indices.size();
    for (size_t strings = 0; parser_.At() < end; ++strings) {
        if (full_ends && parser_.Full()) break;
        if (strings % kStringsAtOnce == 0 && work_.StopRequested()) return false;
        Put(parser_.Take());
        pace_.Add(parser_.At(), bytes_.size(), pixels);
        if (bytes_.size() > limits.most) return false;
        if (strings % kStringsToCompare == 0 && !KeepsUp(limits)) return false;
    }
    return KeepsUp(limits);
}

bool ChoiceLzwEncoder::KeepsUp(const Limits& limits) const {
    if (!limits.pace) return true;
    const double other = limits.pace->BytesFor(parser_.At(), image_.indices.size());
    const size_t may_be_behind = limits.most / kBehind + kAnyBehind;
    return static_cast<double>(bytes_.size()) <= other + static_cast<double>(may_be_behind);
}

void ChoiceLzwEncoder::ClearTable(size_t shorter) {
    Put({static_cast<uint16>(1U << image_.min_code_size), static_cast<uint16>(parser_.CodeSize())});
    parser_.Start(image_, shorter, parser_.At());
}

std::span<const uint8> ChoiceLzwEncoder::End() {
    // The code that ends the image has a leading zero where the last string made codes longer. That
    // is not worth a byte of its own: readers have all pixels by then.
    const uint32 end_code = (1U << image_.min_code_size) + 1;
    const uint32 size = std::min(parser_.CodeSize(), parser_.LastCodeSize());
    Put({static_cast<uint16>(end_code), static_cast<uint16>(size)});
    for (; bit_count_ > 0; bit_count_ -= std::min(bit_count_, 8U), bit_buffer_ >>= 8)
        bytes_.push_back(static_cast<uint8>(bit_buffer_));
    return bytes_;
}

// Least significant bit first.
inline void ChoiceLzwEncoder::Put(LzwParser::Code code) {
    bit_buffer_ |= uint64{code.code} << bit_count_;
    bit_count_ += code.size;
    for (; bit_count_ >= 8; bit_count_ -= 8, bit_buffer_ >>= 8)
        bytes_.push_back(static_cast<uint8>(bit_buffer_));
}

}  // namespace kirto
