#include "formats/fli/fli_decoder.h"

#include <algorithm>
#include <utility>

#include "base/byte_order.h"
#include "base/byte_reader.h"
#include "base/debug_line.h"
#include "base/text.h"
#include "color/fli_colors.h"
#include "color/pixel_table.h"
#include "color/shared_palette.h"
#include "formats/fli/fli_packets.h"
#include "formats/fli/fli_pixel_writer.h"

namespace kirto {

namespace {

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
    palette->mode = kPaletteFromFile;
    palette->size = 256;
    palette->bits = 8;
}

// Whether a picture's pixels have the byte order of the decoder's own.
bool HasPixelsToCopy(const Picture* picture) {
    return picture && picture->HasRows() && !IsBigEndian(picture->ColorSpace());
}

}  // namespace

FliDecoder::FliDecoder(BFile& file, const Palette& global, std::shared_ptr<PixelBudget> budget,
                       Work& work)
    : input_(file, work), budget_(std::move(budget)), work_(work), global_(global) {}

bool FliDecoder::ReadFliHeader(FliHeader* result) {
    uint8 header[kHeaderSize];
    if (!input_.Read(header)) return false;
    const bool is_fli = header[4] == kMagicLowFli;
    if ((!is_fli && header[4] != kMagicLowFlc) || header[5] != kMagicHigh) {
        DebugLine("FliLoad::ReadFliHeader() - Wrong magic number in FLI\n");
        return false;
    }
    result->frame_count = ReadLittle16(header + 6);
    width_ = result->width = ReadLittle16(header + 8);
    height_ = result->height = ReadLittle16(header + 10);
    result->seconds = ReadLittle16(header + 16) / (is_fli ? 70.0 : 1000.0);
    return true;
}

bool FliDecoder::ReadFliFrameHeader() {
    uint8 header[kRecordHeaderSize];
    led_back_ = !input_.StartRecord();
    if (!input_.Read(header)) return false;
    bytes_left_ = static_cast<int32>(ReadLittle32(header));
    const uint16 type = ReadLittle16(header + 4);
    if (type == kSkippedRecord) {
        skipped_block_ = true;
    } else if (type != kFrameRecord) {
        DebugLine("FliLoad::ReadFliFrameHeader() - Wrong magic number in FLI frame\n");
        return false;
    }
    chunk_count_ = ReadLittle16(header + 6);
    return true;
}

FliDecoder::Record FliDecoder::ReadRecord(int32 index, const Place& place, Frame* frame) {
    place_ = &place;
    if (!ReadFliFrameHeader()) return Record::kBroken;
    if (skipped_block_) {
        skipped_block_ = false;
        // Damage in a block that is not shown is no reason to stop; if the file's end was the
        // reason, the next record finds it too.
        static_cast<void>(ReadFLCNewFrame());
        return Record::kSkipped;
    }
    if (chunk_count_ == 0) return Record::kLonger;
    if (!ReadFliFrameData(index)) return Record::kBroken;
    *frame = std::move(frame_);
    return Record::kFrame;
}

bool FliDecoder::ReadFLCNewFrame() {
    for (int32 i = 0; i < chunk_count_; ++i) {
        Chunk chunk;
        if (!ReadChunkHeader(&chunk) || !input_.Skip(chunk.DataSize())) return false;
    }
    return true;
}

bool FliDecoder::ReadFliFrameData(int32 index) {
    if (!StartFrame(index)) return false;
    blank_ = index == 0;
    if (!blank_ && !CopyPreviousFrame()) return false;
    for (int32 i = 0; i < chunk_count_; ++i) {
        if (!ReadChunk()) return false;
    }
    // A record whose chunks claim more than it holds ends where it says. Bytes that no chunk covers
    // are deliberately not skipped: the next record follows the last chunk.
    bytes_left_ -= kRecordHeaderSize;
    if (bytes_left_ < 0 && !input_.Skip(bytes_left_)) return false;
    StartPicture();
    return FinishFrame();
}

bool FliDecoder::StartFrame(int32 index) {
    frame_ = Frame(Format("frame%04d", index), width_, height_);
    local_palette_ = SharePalette();
    // No memory of any size makes a picture of no pixels.
    const bool empty = width_ == 0 || height_ == 0;
    if (local_palette_ && !canvas_ && !empty)
        canvas_ = std::make_unique<FliCanvas>(width_, height_, budget_);
    if (!local_palette_ || empty || !canvas_->Ready()) {
        out_of_memory_ = !local_palette_ || !empty;
        return false;
    }
    return ChargeFrame(PictureWork());
}

// What is spent on a picture as a whole.
int64 FliDecoder::PictureWork() const {
    return int64{width_} * height_ * 4;
}

// A picture brings its own work with it. Where the file leads back it does not: the same few bytes
// would bring it again and again.
bool FliDecoder::ChargeFrame(int64 picture_bytes) {
    if (led_back_) return input_.Spend(kFrameCost + picture_bytes);
    input_.Allow(kFillsPerFrame * picture_bytes);
    return input_.Spend(kFrameCost);
}

// Of a picture of another size as many pixels as fit are copied, without regard to its rows.
bool FliDecoder::CopyPreviousFrame() {
    const FramePointer& previous = place_->previous;
    if (!previous || !HasPixelsToCopy(previous->bitmap.get())) return false;
    if (!canvas_->Take(previous->bitmap, work_)) {
        out_of_memory_ = !canvas_->Ready();
        return false;
    }
    if (previous->local_palette) TakeLocalPalette(*previous->palette);
    return true;
}

void FliDecoder::TakeLocalPalette(const Palette& source) {
    local_palette_->colors = source.colors;
    MarkReadFromFile(local_palette_.get());
    frame_.local_palette = true;
}

bool FliDecoder::ReadChunkHeader(Chunk* chunk) {
    uint8 header[kChunkHeaderSize];
    if (!input_.Read(header)) return false;
    chunk->size = static_cast<int32>(ReadLittle32(header));
    chunk->type = ReadLittle16(header + 4);
    return true;
}

int64 FliDecoder::Chunk::DataSize() const {
    return size - kChunkHeaderSize;
}

bool FliDecoder::ReadChunk() {
    Chunk chunk;
    if (!ReadChunkHeader(&chunk)) return false;
    bytes_left_ -= chunk.size;
    switch (chunk.type) {
        case kChunkColor256:
            return ReadFliCOLORChunk(chunk.DataSize(), true);
        case kChunkDelta:
            return ReadFliDELTAChunk(chunk.DataSize());
        case kChunkColor64:
            return ReadFliCOLORChunk(chunk.DataSize(), false);
        case kChunkLc:
            return ReadFliLCChunk(chunk.DataSize());
        case kChunkBlack:
            return ReadFliBLACKChunk();
        case kChunkBrun:
            return ReadFliBRUNChunk(chunk.DataSize());
        case kChunkCopy:
            return ReadFliCOPYChunk();
        case kChunkMini:
            return ReadFliMINIChunk(chunk.DataSize());
        default:
            return SkipUnknownChunk(chunk);
    }
}

bool FliDecoder::SkipUnknownChunk(const Chunk& chunk) {
    DebugLine("FliLoad::ReadFliFrameData() - Unknown chunk type: 0x%x, seeking 0x%x\n",
              static_cast<unsigned int>(chunk.type), static_cast<unsigned int>(chunk.size));
    return input_.Skip(chunk.DataSize());
}

// Gives the frame its palette and its pixels.
bool FliDecoder::FinishFrame() {
    frame_.bitmap = canvas_->MakePicture(work_);
    if (!frame_.bitmap) {
        out_of_memory_ = !work_.StopRequested();
        return false;
    }
    if (frame_.local_palette) {
        local_palette_->unique_colors =
            local_palette_->CountUniqueColors(frame_.bitmap.get(), &work_);
    } else {
        local_palette_->Set(frame_.bitmap.get(), &work_);
    }
    frame_.palette = std::move(local_palette_);
    return !work_.StopRequested();
}

// The document's first frame defines the global palette, any other frame one of its own. Pixels
// already drawn keep their colors either way.
bool FliDecoder::ReadFliCOLORChunk(int64 size, bool full8bit) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    // Six bits are deliberately not widened to reach 255.
    const int32 factor = full8bit ? 1 : 4;
    if (place_->defines_global) {
        MarkReadFromFile(&global_);
        ReadFliColors(data, factor, &global_.colors);
        return true;
    }
    if (!frame_.local_palette && !TakePreviousPalette()) return false;
    ReadFliColors(data, factor, &local_palette_->colors);
    return true;
}

bool FliDecoder::TakePreviousPalette() {
    const FramePointer& previous = place_->previous;
    if (!previous) return false;
    TakeLocalPalette(previous->local_palette ? *previous->palette : global_);
    return true;
}

bool FliDecoder::ReadFliLCChunk(int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = Writer();
    int32 y = reader.U16();
    for (int32 lines = reader.U16(); lines > 0 && GoesOn(reader); --lines, ++y) {
        writer.MoveToRow(y);
        DrawPackets(DrawLcPacket, reader.U8(), reader, writer);
    }
    return true;
}

// Rows are deliberately not aligned anew: each starts where the packets of the one before ended.
bool FliDecoder::ReadFliBRUNChunk(int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = Writer();
    for (int32 rows = height_; rows > 0 && GoesOn(reader); --rows) {
        DrawPackets(DrawBrunPacket, reader.U8(), reader, writer);
    }
    return true;
}

// Takes one byte a pixel, whatever the chunk's size says.
bool FliDecoder::ReadFliCOPYChunk() {
    std::span<const uint8> data;
    if (!input_.ReadBlock(int64{width_} * height_, &data)) return false;
    FliPixelWriter writer = Writer();
    const size_t row = static_cast<size_t>(width_);
    for (; !data.empty() && !work_.StopRequested(); data = data.subspan(row))
        writer.Copy(data.first(row));
    return true;
}

// Every negative word skips lines, also in the form with the top bits 10 by which some writers set
// the last pixel of a line of odd width.
bool FliDecoder::ReadFliDELTAChunk(int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = Writer();
    int32 lines = reader.U16();
    for (int64 y = 0; lines > 0 && GoesOn(reader);) {
        const int32 word = reader.S16();
        if (word < 0) {
            y -= word;
            continue;
        }
        --lines;
        writer.MoveToRow(y++);
        DrawPackets(DrawDeltaPacket, word, reader, writer);
    }
    return true;
}

bool FliDecoder::ReadFliMINIChunk(int64 size) {
    return input_.Skip(size);
}

bool FliDecoder::ReadFliBLACKChunk() {
    if (!input_.Spend(PictureWork())) return false;
    blank_ = true;
    StartPicture();
    return true;
}

// For drawing into the current picture.
FliPixelWriter FliDecoder::Writer() {
    StartPicture();
    SetTable();
    return FliPixelWriter(*canvas_);
}

void FliDecoder::SetTable() {
    canvas_->SetTable(PixelTableOf((frame_.local_palette ? *local_palette_ : global_).colors));
}

// The file's first picture starts black, but only once there is something to draw into it: until
// then a few bytes that claim a huge picture cost no memory.
void FliDecoder::StartPicture() {
    if (!blank_) return;
    blank_ = false;
    SetTable();
    canvas_->Blacken(work_);
}

bool FliDecoder::GoesOn(const ByteReader& reader) const {
    return !reader.Overrun() && !work_.StopRequested();
}

}  // namespace kirto
