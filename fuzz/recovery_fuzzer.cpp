// A recovery file from hostile bytes: refused with a reason, or a sound document that comes back
// the same when it is written anew. The bytes are tried as they are, and as the unpacked blocks of
// a file, so that changes in them get past the checksums.
#include <cstdlib>
#include <vector>

#include "base/byte_reader.h"
#include "base/byte_writer.h"
#include "formats/recovery/recovery_block_writer.h"
#include "formats/recovery/recovery_file_reader.h"
#include "formats/recovery/recovery_file_writer.h"
#include "support/same_animation.h"

namespace {

constexpr uint64 kPixelBytes = uint64{64} << 20;

void CheckWriting(const kirto::RecoveryDocument& document) {
    kirto::DocumentState state;
    state.animation = std::make_shared<const kirto::Animation>(document.animation);
    state.file_name = document.head.file_name;
    state.file_directory = document.head.file_directory;
    state.modified = document.head.modified;
    const auto file = BFile::OnMemory();
    const kirto::RecoveryFileWriter writer(*file, state, document.head.written);
    if (writer.Status() != B_OK) std::abort();
    file->Seek(0, SEEK_FROM_START);
    kirto::RecoveryFileReader reader(*file);
    const auto again = reader.ReadDocument(nullptr);
    if (!again || again->head != document.head) std::abort();
    if (!kirto::test::SameAnimation(again->animation, document.animation)) std::abort();
}

void CheckSound(const kirto::Animation& animation) {
    if (!animation.palette) std::abort();
    if (animation.selected < -1 || animation.selected >= animation.frames.Size()) std::abort();
    for (const kirto::FramePointer& frame : animation.frames) {
        if (!frame || !frame->palette || !kirto::IsRecoverable(*frame)) std::abort();
    }
}

void Check(const std::vector<uint8>& bytes) {
    const auto budget = std::make_shared<kirto::PixelBudget>(kPixelBytes);
    const auto file = BFile::OnMemory(bytes);
    kirto::RecoveryFileReader reader(*file);
    if (const auto document = reader.ReadDocument(budget)) {
        if (budget->Used() > kPixelBytes) std::abort();
        CheckSound(document->animation);
        CheckWriting(*document);
    } else if (budget->Used() > 0 || reader.Status() == B_OK || !*reader.Reason()) {
        std::abort();
    }
}

// Blocks one after the other: the kind in 8 bits, the length in 16, the contents.
std::vector<uint8> PackedFile(const std::vector<uint8>& bytes) {
    const auto file = BFile::OnMemory();
    kirto::ByteWriter start;
    start.Text(kirto::kRecoveryMagic);
    start.U32(kirto::kRecoveryVersion);
    file->Write(start.Written().data(), start.Written().size());
    kirto::RecoveryBlockWriter blocks(*file);
    kirto::ByteReader fields(bytes);
    while (fields.Left() > 0) {
        const uint32 kind = fields.U8();
        const size_t length = fields.U16();
        blocks.Write(kind, fields.Bytes(length));
    }
    return file->Memory();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8* data, size_t size) {
    const std::vector<uint8> bytes(data, data + size);
    Check(bytes);
    Check(PackedFile(bytes));
    return 0;
}
