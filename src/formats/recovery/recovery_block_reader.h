#pragma once

#include <memory>
#include <span>
#include <vector>

#include "base/allocation.h"
#include "base/types.h"
#include "kit/file.h"

struct ZSTD_DCtx_s;

namespace kirto {

// Takes the blocks of a recovery file apart. Every byte of the file may be anything. The first
// failure is remembered, and everything fails from then on.
class RecoveryBlockReader {
  public:
    // file: at its first block; it must outlive the reader.
    explicit RecoveryBlockReader(BFile& file);

    // Goes to the next block. Its contents must be read to their end before the one after it.
    bool Open();
    uint32 Kind() const { return kind_; }
    // Unpacked bytes of the block that are not read yet, as it says itself.
    uint64 Left() const { return left_; }
    // Unpacks exactly so many of them.
    bool Read(std::span<uint8> bytes);
    // True when nothing is left of the block, and what was read has the right checksum.
    bool Close();
    // Reads a block that is no picture as a whole.
    bool ReadWhole(std::vector<uint8>* bytes);
    bool AtEnd() const;

    // B_OK; B_BAD_DATA for a damaged file, B_NO_MEMORY, B_IO_ERROR; and the failure in words.
    status_t Status() const { return status_; }
    const char* Reason() const { return reason_; }
    // False. What its caller found counts as the reader's failure.
    bool Fail(status_t status, const char* reason);

  private:
    struct ContextDeleter {
        void operator()(ZSTD_DCtx_s* context) const;
    };

    bool Refill();
    bool Unpack(std::span<uint8> bytes, size_t* done);

    BFile& file_;
    const std::unique_ptr<ZSTD_DCtx_s, ContextDeleter> context_;
    const AllocatedArray<uint8> packed_;
    size_t packed_size_ = 0;  // bytes there, and how many of them are unpacked
    size_t packed_position_ = 0;
    uint64 stored_left_ = 0;  // packed bytes of the block that are still in the file
    uint64 left_ = 0;
    uint32 kind_ = 0;
    bool finished_ = false;  // the packed bytes have come to their end and are sound
    status_t status_ = B_OK;
    const char* reason_ = "";
};

}  // namespace kirto
