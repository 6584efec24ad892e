#pragma once

#include <memory>
#include <span>

#include "base/allocation.h"
#include "base/types.h"
#include "kit/file.h"

struct ZSTD_CCtx_s;

namespace kirto {

// Appends the blocks of a recovery file, packed and with their checksums.
class RecoveryBlockWriter {
  public:
    // The file must outlive the writer.
    explicit RecoveryBlockWriter(BFile& file);

    // B_NO_MEMORY without the memory to pack anything.
    status_t InitCheck() const { return context_ && packed_ ? B_OK : B_NO_MEMORY; }
    // Writes one block that holds the first bytes and then the second ones. Returns B_OK, or why it
    // is not written; the file is of no use then.
    status_t Write(uint32 kind, std::span<const uint8> first, std::span<const uint8> second = {});

  private:
    struct ContextDeleter {
        void operator()(ZSTD_CCtx_s* context) const;
    };

    void WriteHeader(uint32 kind, uint64 length, uint64 stored);
    status_t Pack(std::span<const uint8> bytes, bool last);

    BFile& file_;
    const std::unique_ptr<ZSTD_CCtx_s, ContextDeleter> context_;
    const AllocatedArray<uint8> packed_;  // what the packer hands out at a time
};

}  // namespace kirto
