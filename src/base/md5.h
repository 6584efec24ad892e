#pragma once

#include <array>
#include <string>

#include "base/types.h"

namespace kirto {

// The MD5 digest of bytes that come in pieces (RFC 1321). It tells pictures apart; it protects
// nothing.
class Md5 {
  public:
    void Add(const uint8* bytes, size_t size);
    // The digest as 32 lower-case hexadecimal digits. Once only; nothing may be added after it.
    std::string Finish();

  private:
    static constexpr size_t kBlockSize = 64;

    void AddBlock(const uint8* block);

    std::array<uint32, 4> state_ = {0x67452301, 0xEFCDAB89, 0x98BADCFE, 0x10325476};
    std::array<uint8, kBlockSize> pending_{};
    uint64 byte_count_ = 0;
};

// The digest of one piece.
std::string Md5Hex(const uint8* bytes, size_t size);

}  // namespace kirto
