#include "base/md5.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>

#include "base/byte_order.h"
#include "base/text.h"

namespace kirto {

namespace {

// The integer parts of 2^32 |sin(i)|, i from 1 in radians: the RFC's definition of the table.
std::array<uint32, 64> MakeSines() {
    std::array<uint32, 64> sines{};
    for (size_t i = 0; i < sines.size(); ++i) {
        sines[i] = static_cast<uint32>(std::abs(std::sin(static_cast<double>(i + 1))) * 0x1p32);
    }
    return sines;
}

// The bits to rotate by, in rounds of 16 steps, each cycling through four.
constexpr int kRotations[4][4] = {
    {7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};

// The step's function of three words, and the word of the block that it takes.
uint32 Mix(size_t step, uint32 b, uint32 c, uint32 d) {
    switch (step / 16) {
        case 0:
            return (b & c) | (~b & d);
        case 1:
            return (b & d) | (c & ~d);
        case 2:
            return b ^ c ^ d;
        default:
            return c ^ (b | ~d);
    }
}

size_t WordOfStep(size_t step) {
    static constexpr size_t kFactors[4] = {1, 5, 3, 7};
    static constexpr size_t kOffsets[4] = {0, 1, 5, 0};
    return (step * kFactors[step / 16] + kOffsets[step / 16]) % 16;
}

}  // namespace

void Md5::Add(const uint8* bytes, size_t size) {
    while (size > 0) {
        const size_t used = byte_count_ % kBlockSize;
        const size_t step = std::min(size, kBlockSize - used);
        std::memcpy(&pending_[used], bytes, step);
        byte_count_ += step;
        bytes += step;
        size -= step;
        if (byte_count_ % kBlockSize == 0) AddBlock(pending_.data());
    }
}

std::string Md5::Finish() {
    const uint64 bit_count = byte_count_ * 8;
    static constexpr uint8 kMarker = 0x80;
    static constexpr uint8 kPadding = 0;
    Add(&kMarker, 1);
    while (byte_count_ % kBlockSize != kBlockSize - 8)
        Add(&kPadding, 1);
    for (int shift = 0; shift < 64; shift += 8) {
        const uint8 byte = static_cast<uint8>(bit_count >> shift);
        Add(&byte, 1);
    }
    std::string digest;
    for (const uint32 word : state_) {
        for (int shift = 0; shift < 32; shift += 8)
            digest += Format("%02x", word >> shift & 0xFF);
    }
    return digest;
}

void Md5::AddBlock(const uint8* block) {
    static const std::array<uint32, 64> kSines = MakeSines();
    auto [a, b, c, d] = state_;
    for (size_t step = 0; step < 64; ++step) {
        const uint32 word = ReadLittle32(block + WordOfStep(step) * 4);
        const uint32 sum = a + Mix(step, b, c, d) + kSines[step] + word;
        a = d;
        d = c;
        c = b;
        b += std::rotl(sum, kRotations[step / 16][step % 4]);
    }
    state_[0] += a;
    state_[1] += b;
    state_[2] += c;
    state_[3] += d;
}

std::string Md5Hex(const uint8* bytes, size_t size) {
    Md5 md5;
    md5.Add(bytes, size);
    return md5.Finish();
}

}  // namespace kirto
