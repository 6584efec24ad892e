#pragma once

#include <span>
#include <unordered_map>

#include "base/types.h"
#include "document/document_state.h"
#include "formats/recovery/recovery_block_writer.h"
#include "formats/recovery/recovery_file.h"
#include "kit/file.h"

namespace kirto {

class ByteWriter;

// Writes a document as it was at one moment, pixel for pixel, into a recovery file. The
// construction does all the work. Pictures and palettes that frames share are written once.
// The methods stand in the order of the file; the layout is described in docs/formats/recovery.md.
class RecoveryFileWriter {
  public:
    // file: empty and writable; the caller commits it. written: seconds since 1970.
    RecoveryFileWriter(BFile& file, const DocumentState& state, int64 written);

    // B_OK, or why the file is of no use: the first failure of writing it, B_NO_MEMORY, or
    // B_BAD_VALUE for a document that no reader would accept: with more than kMaxRecoveryFrames
    // frames, a frame without pixels, a name that is too long.
    status_t Status() const { return status_; }

  private:
    bool WriteAll(const DocumentState& state, int64 written);
    bool WriteMagic();
    bool WriteHead(const DocumentState& state, int64 written);
    bool WritePalette(const Palette& palette);
    bool WritePicture(const Picture& picture);
    bool WriteFrame(const Frame& frame);
    bool WriteBlock(uint32 kind, const ByteWriter& fields, std::span<const uint8> pixels = {});
    bool Fail(status_t status);

    BFile& file_;
    RecoveryBlockWriter blocks_;
    // The numbers of what is written, in the order of the file.
    std::unordered_map<const Palette*, uint32> palettes_;
    std::unordered_map<const Picture*, uint32> pictures_;
    status_t status_ = B_OK;
};

}  // namespace kirto
