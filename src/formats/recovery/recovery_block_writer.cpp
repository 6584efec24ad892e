#include "formats/recovery/recovery_block_writer.h"

#include <array>
#include <zstd.h>

#include "base/byte_order.h"
#include "formats/recovery/recovery_file.h"

namespace kirto {

namespace {

constexpr int kPackingLevel = 1;  // a document is written often and hardly ever read

void WriteLittle64(uint8* bytes, uint64 value) {
    for (int i = 0; i < 8; ++i)
        bytes[i] = static_cast<uint8>(value >> (8 * i));
}

}  // namespace

void RecoveryBlockWriter::ContextDeleter::operator()(ZSTD_CCtx_s* context) const {
    ZSTD_freeCCtx(context);
}

RecoveryBlockWriter::RecoveryBlockWriter(BFile& file)
    : file_(file),
      context_(AllocationShouldFail() ? nullptr : ZSTD_createCCtx()),
      packed_(AllocateArray<uint8>(kRecoveryBuffer)) {
    if (!context_) return;
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_compressionLevel, kPackingLevel);
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_windowLog, kRecoveryWindow);
    ZSTD_CCtx_setParameter(context_.get(), ZSTD_c_checksumFlag, 1);
}

status_t RecoveryBlockWriter::Write(uint32 kind, std::span<const uint8> first,
                                    std::span<const uint8> second) {
    if (InitCheck() != B_OK) return InitCheck();
    const uint64 length = uint64{first.size()} + second.size();
    ZSTD_CCtx_reset(context_.get(), ZSTD_reset_session_only);
    ZSTD_CCtx_setPledgedSrcSize(context_.get(), length);
    const int64 start = file_.Position();
    WriteHeader(kind, length, 0);
    const int64 stored_from = file_.Position();
    status_t status = Pack(first, second.empty());
    if (status == B_OK && !second.empty()) status = Pack(second, true);
    if (status != B_OK) return status;
    // Only now it is known how long the packed bytes are.
    const int64 end = file_.Position();
    file_.Seek(start, SEEK_FROM_START);
    WriteHeader(kind, length, static_cast<uint64>(end - stored_from));
    file_.Seek(end, SEEK_FROM_START);
    return file_.WriteStatus();
}

void RecoveryBlockWriter::WriteHeader(uint32 kind, uint64 length, uint64 stored) {
    std::array<uint8, kRecoveryBlockHeader> header;
    WriteLittle16(header.data(), kind);
    WriteLittle16(&header[2], kind >> 16);
    WriteLittle64(&header[4], length);
    WriteLittle64(&header[12], stored);
    file_.Write(header.data(), header.size());
}

status_t RecoveryBlockWriter::Pack(std::span<const uint8> bytes, bool last) {
    ZSTD_inBuffer input{bytes.data(), bytes.size(), 0};
    const ZSTD_EndDirective directive = last ? ZSTD_e_end : ZSTD_e_continue;
    for (bool done = false; !done;) {
        ZSTD_outBuffer output{packed_.get(), kRecoveryBuffer, 0};
        const size_t left = ZSTD_compressStream2(context_.get(), &output, &input, directive);
        if (ZSTD_isError(left)) return B_NO_MEMORY;
        file_.Write(packed_.get(), output.pos);
        if (file_.WriteStatus() != B_OK) return file_.WriteStatus();
        done = last ? left == 0 : input.pos == input.size;
    }
    return B_OK;
}

}  // namespace kirto
