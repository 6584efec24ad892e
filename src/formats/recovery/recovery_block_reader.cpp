#include "formats/recovery/recovery_block_reader.h"

#include <algorithm>
#include <array>
#include <new>
#include <zstd.h>
#include <zstd_errors.h>

#include "base/byte_reader.h"
#include "formats/recovery/recovery_file.h"

namespace kirto {

void RecoveryBlockReader::ContextDeleter::operator()(ZSTD_DCtx_s* context) const {
    ZSTD_freeDCtx(context);
}

RecoveryBlockReader::RecoveryBlockReader(BFile& file)
    : file_(file),
      context_(AllocationShouldFail() ? nullptr : ZSTD_createDCtx()),
      packed_(AllocateArray<uint8>(kRecoveryBuffer)) {
    if (!context_ || !packed_) {
        Fail(B_NO_MEMORY, "out of memory");
        return;
    }
    ZSTD_DCtx_setParameter(context_.get(), ZSTD_d_windowLogMax, kRecoveryWindow);
}

bool RecoveryBlockReader::Fail(status_t status, const char* reason) {
    if (status_ == B_OK) {
        status_ = status;
        reason_ = reason;
    }
    return false;
}

bool RecoveryBlockReader::AtEnd() const {
    return file_.Position() == file_.Size();
}

bool RecoveryBlockReader::Open() {
    if (status_ != B_OK) return false;
    std::array<uint8, kRecoveryBlockHeader> header;
    if (!file_.ReadExactly(header.data(), header.size())) {
        return Fail(B_BAD_DATA, "the file is cut off");
    }
    ByteReader fields(header);
    kind_ = fields.U32();
    left_ = fields.U64();
    stored_left_ = fields.U64();
    if (stored_left_ > static_cast<uint64>(file_.Size() - file_.Position())) {
        return Fail(B_BAD_DATA, "the file is cut off");
    }
    ZSTD_DCtx_reset(context_.get(), ZSTD_reset_session_only);
    packed_size_ = 0;
    packed_position_ = 0;
    finished_ = false;
    return true;
}

// Takes more packed bytes out of the file where all of those here are unpacked.
bool RecoveryBlockReader::Refill() {
    if (packed_position_ < packed_size_) return true;
    packed_size_ = static_cast<size_t>(std::min<uint64>(stored_left_, kRecoveryBuffer));
    packed_position_ = 0;
    if (packed_size_ == 0) return Fail(B_BAD_DATA, "a block is shorter than it says");
    if (!file_.ReadExactly(packed_.get(), packed_size_)) {
        return Fail(B_IO_ERROR, "the file can't be read");
    }
    stored_left_ -= packed_size_;
    return true;
}

// Unpacks what the packed bytes at hand give; *done grows by it.
bool RecoveryBlockReader::Unpack(std::span<uint8> bytes, size_t* done) {
    ZSTD_inBuffer input{packed_.get(), packed_size_, packed_position_};
    ZSTD_outBuffer output{bytes.data(), bytes.size(), *done};
    const size_t left = ZSTD_decompressStream(context_.get(), &output, &input);
    if (ZSTD_isError(left)) {
        return Fail(
            ZSTD_getErrorCode(left) == ZSTD_error_memory_allocation ? B_NO_MEMORY : B_BAD_DATA,
            "a block can't be unpacked");
    }
    packed_position_ = input.pos;
    *done = output.pos;
    finished_ = left == 0;
    return true;
}

bool RecoveryBlockReader::Read(std::span<uint8> bytes) {
    if (status_ != B_OK) return false;
    if (bytes.size() > left_) return Fail(B_BAD_DATA, "a block is too short");
    for (size_t done = 0; done < bytes.size();) {
        if (finished_) return Fail(B_BAD_DATA, "a block is shorter than it says");
        if (!Refill() || !Unpack(bytes, &done)) return false;
    }
    left_ -= bytes.size();
    return true;
}

bool RecoveryBlockReader::Close() {
    if (status_ != B_OK) return false;
    if (left_ > 0) return Fail(B_BAD_DATA, "a block is too long");
    // The checksum comes behind the last byte.
    uint8 surplus = 0;
    for (size_t done = 0; !finished_;) {
        if (!Refill() || !Unpack({&surplus, 1}, &done)) return false;
        if (done > 0) return Fail(B_BAD_DATA, "a block is longer than it says");
    }
    if (stored_left_ > 0 || packed_position_ < packed_size_) {
        return Fail(B_BAD_DATA, "a block is longer than it says");
    }
    return true;
}

bool RecoveryBlockReader::ReadWhole(std::vector<uint8>* bytes) {
    if (left_ > kMaxRecoveryBlock) return Fail(B_BAD_DATA, "a block is too long");
    bytes->resize(static_cast<size_t>(left_));
    return Read(*bytes) && Close();
}

}  // namespace kirto
