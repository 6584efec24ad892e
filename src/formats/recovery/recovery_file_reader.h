#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "base/pixel_budget.h"
#include "base/types.h"
#include "formats/recovery/recovery_block_reader.h"
#include "formats/recovery/recovery_file.h"
#include "kit/file.h"

namespace kirto {

class ByteReader;

// Reads a recovery file. Every byte of it may be anything: what is not sound is refused as a whole.
// One of ReadHead and ReadDocument is called, once.
// The methods stand in the order of the file; the layout is described in docs/formats/recovery.md.
class RecoveryFileReader {
  public:
    // file: at its start; it must outlive the reader.
    explicit RecoveryFileReader(BFile& file) : file_(file), blocks_(file) {}

    // What is told of the document; only the first bytes of the file are looked at.
    std::optional<RecoveryHead> ReadHead();
    // The whole document, its pictures counted by the budget. The frames have new ids.
    std::optional<RecoveryDocument> ReadDocument(std::shared_ptr<PixelBudget> budget);

    // Why there was none: B_BAD_DATA for a damaged file; B_NO_MEMORY, also where the budget does
    // not suffice; B_IO_ERROR. And the same in words.
    status_t Status() const { return blocks_.Status(); }
    const char* Reason() const { return blocks_.Reason(); }

  private:
    bool ReadAll();
    bool ReadMagic();
    bool ReadHeadBlock();
    bool ReadFrames();
    bool ReadPalette();
    bool ReadPicture();
    bool ReadFrame();
    bool Refuse(const char* reason) { return blocks_.Fail(B_BAD_DATA, reason); }
    bool OutOfMemory() { return blocks_.Fail(B_NO_MEMORY, "out of memory"); }

    BFile& file_;
    RecoveryBlockReader blocks_;
    std::shared_ptr<PixelBudget> budget_;
    RecoveryDocument document_;
    // By their numbers, in the order of the file.
    std::vector<std::shared_ptr<const Palette>> palettes_;
    std::vector<std::shared_ptr<const Picture>> pictures_;
};

}  // namespace kirto
