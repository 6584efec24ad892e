#include "formats/fli_load.h"

#include <algorithm>
#include <cstring>
#include <new>

#include "color/fli_colors.h"
#include "document/document_scope.h"
#include "formats/fli_packets.h"
#include "formats/fli_pixel_writer.h"
#include "platform/byte_order.h"
#include "platform/byte_reader.h"
#include "platform/debug_line.h"
#include "platform/text.h"

namespace {

using kirto::ByteReader;
using kirto::FliPixelWriter;

constexpr size_t kHeaderSize = 128;
constexpr int64 kRecordHeaderSize = 16;
constexpr int64 kChunkHeaderSize = 6;

constexpr uint8 kMagicHigh = 0xAF;
constexpr uint8 kMagicLowFli = 0x11;
constexpr uint8 kMagicLowFlc = 0x12;
constexpr uint16 kFrameRecord = 0xF1FA;
constexpr uint16 kSkippedRecord = 0x00A1;

constexpr uint16 kChunkColor256 = 4;
constexpr uint16 kChunkDelta = 7;
constexpr uint16 kChunkColor64 = 11;
constexpr uint16 kChunkLc = 12;
constexpr uint16 kChunkBlack = 13;
constexpr uint16 kChunkBrun = 15;
constexpr uint16 kChunkCopy = 16;
constexpr uint16 kChunkMini = 18;

// Pictures' worth of work that each frame may take, beside what the file's size allows.
constexpr int64 kFillsPerFrame = 4;
// What a frame costs however small it is: building its palette takes a while.
constexpr int64 kFrameCost = 200;

void MarkReadFromFile(Palette* palette) {
    palette->mode = kirto::kPaletteFromFile;
    palette->size = 256;
    palette->bits = 8;
}

void TakeLocalPalette(Frame* frame, const Palette& source) {
    frame->palette->colors = source.colors;
    frame->local_palette = true;
    MarkReadFromFile(frame->palette.get());
}

// Whether a picture's pixels have the byte order of the decoder's own.
bool HasPixelsToCopy(const BBitmap* bitmap) {
    return bitmap && bitmap->Bits() && kirto::Is32Bit(bitmap->ColorSpace()) &&
           !kirto::IsBigEndian(bitmap->ColorSpace());
}

}  // namespace

FliLoad::FliLoad(BFile* file, int32 start, AnimationDocument& document)
    : input_(*file), document_(document), position_(start) {
    if (file->InitCheck() != B_OK || !ReadFliHeader()) {
        failed = true;
        return;
    }
    for (int32 i = 0; i < frame_count_ && !failed; ++i) {
        document_.PostStatus(
            kirto::Format("Status: loading frame %d of %d...", i + 1, frame_count_));
        failed = document_.StopRequested() || !ReadFliFrameHeader() || !ReadRecord(i);
    }
}

bool FliLoad::ReadFliHeader() {
    uint8 header[kHeaderSize];
    if (!input_.Read(header)) return false;
    const bool is_fli = header[4] == kMagicLowFli;
    if ((!is_fli && header[4] != kMagicLowFlc) || header[5] != kMagicHigh) {
        kirto::DebugLine("FliLoad::ReadFliHeader() - Wrong magic number in FLI\n");
        return false;
    }
    frame_count_ = kirto::ReadLittle16(header + 6);
    const kirto::WriterScope writer(document_);
    document_.global_width = kirto::ReadLittle16(header + 8);
    document_.global_height = kirto::ReadLittle16(header + 10);
    const double seconds = kirto::ReadLittle16(header + 16) / (is_fli ? 70.0 : 1000.0);
    document_.pause_length_global =
        document_.prefs.global_pauseinseconds ? seconds : seconds * 100.0;
    return true;
}

bool FliLoad::ReadFliFrameHeader() {
    uint8 header[kRecordHeaderSize];
    if (!input_.Read(header)) return false;
    bytes_left_ = static_cast<int32>(kirto::ReadLittle32(header));
    const uint16 type = kirto::ReadLittle16(header + 4);
    if (type == kSkippedRecord) {
        skipped_block_ = true;
    } else if (type != kFrameRecord) {
        kirto::DebugLine("FliLoad::ReadFliFrameHeader() - Wrong magic number in FLI frame\n");
        return false;
    }
    chunk_count_ = kirto::ReadLittle16(header + 6);
    return true;
}

bool FliLoad::ReadRecord(int32 index) {
    if (skipped_block_) {
        skipped_block_ = false;
        // Damage in a block that is not shown is no reason to stop; if the file's end was the
        // reason, the next record finds it too.
        static_cast<void>(ReadFLCNewFrame());
        return true;
    }
    if (chunk_count_ == 0) return ShowPreviousFrameLonger();
    if (!ReadFliFrameData(index, position_)) return false;
    ++position_;
    return true;
}

bool FliLoad::ReadFLCNewFrame() {
    for (int32 i = 0; i < chunk_count_; ++i) {
        Chunk chunk;
        if (!ReadChunkHeader(&chunk) || !input_.Skip(chunk.DataSize())) return false;
    }
    return true;
}

// A record without chunks repeats the picture: instead of another frame, the last one waits longer.
bool FliLoad::ShowPreviousFrameLonger() {
    const kirto::WriterScope writer(document_);
    Frame* frame = document_.FrameAt(position_ - 1);
    if (!frame) return false;
    if (frame->use_pause) {
        frame->pause_length += document_.pause_length_global;
    } else {
        frame->use_pause = true;
        frame->pause_length = document_.pause_length_global * 2;
    }
    return true;
}

bool FliLoad::ReadFliFrameData(int32 index, int32 position) {
    std::unique_ptr<Frame> frame = NewFrame(index, position);
    if (!frame) return false;
    blank_ = index == 0;
    if (!blank_ && !CopyPreviousFrame(frame.get(), position)) return false;
    for (int32 i = 0; i < chunk_count_; ++i) {
        if (!ReadChunk(frame.get(), position)) return false;
    }
    // A record whose chunks claim more than it holds ends where it says. Bytes that no chunk covers
    // are deliberately not skipped: the next record follows the last chunk.
    bytes_left_ -= kRecordHeaderSize;
    if (bytes_left_ < 0 && !input_.Skip(bytes_left_)) return false;
    StartPicture(frame.get());
    FinishPalette(frame.get());
    if (!document_.InsertFrame(frame.get())) return false;
    static_cast<void>(frame.release());
    return true;
}

std::unique_ptr<Frame> FliLoad::NewFrame(int32 index, int32 position) {
    if (kirto::AllocationShouldFail()) return nullptr;
    const int32 width = document_.global_width;
    const int32 height = document_.global_height;
    std::unique_ptr<Frame> frame(
        new (std::nothrow) Frame(kirto::Format("frame%04d", index), width, height, position));
    if (!frame || frame->init_failed) return nullptr;
    frame->bitmap =
        std::make_shared<BBitmap>(BRect::OfSize(width, height), B_RGB32, document_.pixel_budget);
    if (frame->bitmap->InitCheck() != B_OK) return nullptr;
    input_.Allow(kFillsPerFrame * static_cast<int64>(frame->bitmap->BitsLength()));
    if (!input_.Spend(kFrameCost)) return nullptr;
    return frame;
}

// Of a picture of another size as many pixels as fit are copied, without regard to its rows.
bool FliLoad::CopyPreviousFrame(Frame* frame, int32 position) {
    const kirto::ReaderScope reader(document_);
    const Frame* previous = document_.FrameAt(position - 1);
    if (!previous || !HasPixelsToCopy(previous->bitmap.get())) return false;
    std::memcpy(frame->bitmap->Bits(), previous->bitmap->Bits(),
                std::min(frame->bitmap->BitsLength(), previous->bitmap->BitsLength()));
    if (previous->local_palette) TakeLocalPalette(frame, *previous->palette);
    return true;
}

bool FliLoad::ReadChunkHeader(Chunk* chunk) {
    uint8 header[kChunkHeaderSize];
    if (!input_.Read(header)) return false;
    chunk->size = static_cast<int32>(kirto::ReadLittle32(header));
    chunk->type = kirto::ReadLittle16(header + 4);
    return true;
}

int64 FliLoad::Chunk::DataSize() const {
    return size - kChunkHeaderSize;
}

bool FliLoad::ReadChunk(Frame* frame, int32 position) {
    Chunk chunk;
    if (!ReadChunkHeader(&chunk)) return false;
    bytes_left_ -= chunk.size;
    switch (chunk.type) {
        case kChunkColor256:
            return ReadFliCOLORChunk(frame, chunk.DataSize(), position, true);
        case kChunkDelta:
            return ReadFliDELTAChunk(frame, chunk.DataSize());
        case kChunkColor64:
            return ReadFliCOLORChunk(frame, chunk.DataSize(), position, false);
        case kChunkLc:
            return ReadFliLCChunk(frame, chunk.DataSize());
        case kChunkBlack:
            return ReadFliBLACKChunk(frame);
        case kChunkBrun:
            return ReadFliBRUNChunk(frame, chunk.DataSize());
        case kChunkCopy:
            return ReadFliCOPYChunk(frame);
        case kChunkMini:
            return ReadFliMINIChunk(chunk.DataSize());
        default:
            return SkipUnknownChunk(chunk);
    }
}

bool FliLoad::SkipUnknownChunk(const Chunk& chunk) {
    kirto::DebugLine("FliLoad::ReadFliFrameData() - Unknown chunk type: 0x%x, seeking 0x%x\n",
                     static_cast<unsigned int>(chunk.type), static_cast<unsigned int>(chunk.size));
    return input_.Skip(chunk.DataSize());
}

void FliLoad::FinishPalette(Frame* frame) {
    Palette& palette = *frame->palette;
    if (frame->local_palette) {
        palette.unique_colors = palette.CountUniqueColors(frame->bitmap.get());
    } else {
        palette.Set(frame->bitmap.get());
    }
}

// The document's first frame defines the global palette, any other frame one of its own. Pixels
// already drawn keep their colours either way.
bool FliLoad::ReadFliCOLORChunk(Frame* frame, int64 size, int32 position, bool full8bit) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    // Six bits are deliberately not widened to reach 255.
    const int32 factor = full8bit ? 1 : 4;
    if (position == 0) {
        const kirto::WriterScope writer(document_);
        MarkReadFromFile(document_.global_palette.get());
        kirto::ReadFliColors(data, factor, &document_.global_palette->colors);
        return true;
    }
    if (!frame->local_palette && !TakePreviousPalette(frame, position)) return false;
    kirto::ReadFliColors(data, factor, &frame->palette->colors);
    return true;
}

bool FliLoad::TakePreviousPalette(Frame* frame, int32 position) {
    const kirto::ReaderScope reader(document_);
    const Frame* previous = document_.FrameAt(position - 1);
    if (!previous) return false;
    TakeLocalPalette(frame, PaletteOf(previous));
    return true;
}

bool FliLoad::ReadFliLCChunk(Frame* frame, int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = WriterFor(frame);
    int32 y = reader.U16();
    for (int32 lines = reader.U16(); lines > 0 && !reader.Overrun(); --lines, ++y) {
        writer.MoveToRow(y);
        DrawPackets(kirto::DrawLcPacket, reader.U8(), reader, writer);
    }
    return true;
}

// Rows are deliberately not aligned anew: each starts where the packets of the one before ended.
bool FliLoad::ReadFliBRUNChunk(Frame* frame, int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = WriterFor(frame);
    for (int32 rows = frame->height; rows > 0 && !reader.Overrun(); --rows) {
        DrawPackets(kirto::DrawBrunPacket, reader.U8(), reader, writer);
    }
    return true;
}

// Takes one byte a pixel, whatever the chunk's size says.
bool FliLoad::ReadFliCOPYChunk(Frame* frame) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(int64{frame->width} * frame->height, &data)) return false;
    WriterFor(frame).Copy(data);
    return true;
}

// Every negative word skips lines, also in the form with the top bits 10 by which some writers set
// the last pixel of a line of odd width.
bool FliLoad::ReadFliDELTAChunk(Frame* frame, int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = WriterFor(frame);
    int32 lines = reader.U16();
    for (int64 y = 0; lines > 0 && !reader.Overrun();) {
        const int32 word = reader.S16();
        if (word < 0) {
            y -= word;
            continue;
        }
        --lines;
        writer.MoveToRow(y++);
        DrawPackets(kirto::DrawDeltaPacket, word, reader, writer);
    }
    return true;
}

bool FliLoad::ReadFliMINIChunk(int64 size) {
    return input_.Skip(size);
}

bool FliLoad::ReadFliBLACKChunk(Frame* frame) {
    if (!input_.Spend(static_cast<int64>(frame->bitmap->BitsLength()))) return false;
    blank_ = true;
    StartPicture(frame);
    return true;
}

kirto::FliPixelWriter FliLoad::WriterFor(Frame* frame) {
    StartPicture(frame);
    return FliPixelWriter(*frame->bitmap, PaletteOf(frame));
}

// The file's first picture starts black, but only once there is something to draw into it: until
// then a few bytes that claim a huge picture cost no memory.
void FliLoad::StartPicture(Frame* frame) {
    if (!blank_) return;
    blank_ = false;
    static constexpr uint8 kOpaqueBlack[4] = {0, 0, 0, 255};
    uint8* bits = frame->bitmap->Bits();
    for (size_t i = 0; i < frame->bitmap->BitsLength(); i += sizeof(kOpaqueBlack)) {
        std::memcpy(bits + i, kOpaqueBlack, sizeof(kOpaqueBlack));
    }
}

const Palette& FliLoad::PaletteOf(const Frame* frame) const {
    return frame->local_palette ? *frame->palette : *document_.global_palette;
}
