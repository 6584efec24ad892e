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

FliDecoder::FliDecoder(BFile& file, FliRules rules, const Palette& global,
                       std::shared_ptr<PixelBudget> budget, Work& work)
    : input_(file, work), rules_(rules), budget_(std::move(budget)), work_(work), global_(global) {}

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
    const int32 speed = ReadLittle16(header + 16);
    result->seconds = speed / (is_fli ? 70.0 : 1000.0);
    result->hundredths = is_fli ? speed * 100 / 70.0 : speed / 10.0;
    return true;
}

bool FliDecoder::ReadFliFrameHeader() {
    uint8 header[kRecordHeaderSize];
    const int64 start = input_.Position();
    led_back_ = !input_.StartRecord();
    if (!input_.Read(header)) return false;
    bytes_left_ = static_cast<int32>(ReadLittle32(header));
    record_end_ = start + bytes_left_;
    const uint16 type = ReadLittle16(header + 4);
    const bool players = rules_ == FliRules::kPlayers;
    // Nothing but its size tells how a player finds the next record.
    if (players && bytes_left_ < kRecordHeaderSize) return false;
    if (type == kSkippedRecord || (players && type != kFrameRecord)) {
        skipped_block_ = true;
    } else if (type != kFrameRecord) {
        DebugLine("FliLoad::ReadFliFrameHeader() - Wrong magic number in FLI frame\n");
        // Players go on behind it.
        if (bytes_left_ >= kRecordHeaderSize && record_end_ <= input_.Size())
            cause_ = HarmlessCause::kUnknownRecord;
        return false;
    }
    chunk_count_ = ReadLittle16(header + 6);
    return true;
}

FliDecoder::Record FliDecoder::ReadRecord(int32 index, const Place& place, Frame* frame,
                                          std::shared_ptr<Palette>* palette) {
    place_ = &place;
    if (!ReadFliFrameHeader()) return Record::kBroken;
    if (skipped_block_) return ReadOtherRecord();
    const bool shows_previous = rules_ == FliRules::kDefined || canvas_;
    if (chunk_count_ == 0 && shows_previous) {
        return GoToEnd() ? Record::kLonger : Record::kBroken;
    }
    if (!ReadFliFrameData(index)) return Record::kBroken;
    *frame = std::move(frame_);
    *palette = std::move(local_palette_);
    return Record::kFrame;
}

FliDecoder::Record FliDecoder::ReadOtherRecord() {
    skipped_block_ = false;
    if (rules_ == FliRules::kPlayers) return GoToEnd() ? Record::kSkipped : Record::kBroken;
    // Damage in a block that is not shown is no reason to stop; if the file's end was the reason,
    // the next record finds it too.
    static_cast<void>(ReadFLCNewFrame());
    return Record::kSkipped;
}

bool FliDecoder::ReadFLCNewFrame() {
    for (int32 i = 0; i < chunk_count_; ++i) {
        Chunk chunk;
        if (!ReadChunkHeader(&chunk) || !input_.Skip(chunk.DataSize())) return false;
    }
    return true;
}

// Players take the next record from where this one says it ends.
bool FliDecoder::GoToEnd() {
    return rules_ == FliRules::kDefined || input_.Skip(record_end_ - input_.Position());
}

bool FliDecoder::ReadFliFrameData(int32 index) {
    if (!StartFrame(index)) return false;
    blank_ = index == 0;
    if (!blank_ && !CopyPreviousFrame()) return false;
    const bool read = rules_ == FliRules::kPlayers ? ReadChunksBySize() : ReadChunks();
    if (!read) return false;
    StartPicture();
    if (rules_ == FliRules::kPlayers) canvas_->Recolor(CurrentTable());
    return FinishFrame();
}

bool FliDecoder::ReadChunks() {
    for (int32 i = 0; i < chunk_count_; ++i) {
        Chunk chunk;
        if (!ReadChunkHeader(&chunk)) return false;
        bytes_left_ -= chunk.size;
        if (!ReadChunkData(chunk)) return false;
    }
    // A record whose chunks claim more than it holds ends where it says. Bytes that no chunk covers
    // are deliberately not skipped: the next record follows the last chunk.
    bytes_left_ -= kRecordHeaderSize;
    return bytes_left_ >= 0 || input_.Skip(bytes_left_);
}

// Each chunk ends where it says, and none goes further than its record and the file do.
bool FliDecoder::ReadChunksBySize() {
    const int64 end = std::min(record_end_, input_.Size());
    for (int32 i = 0; i < chunk_count_ && input_.Position() + kChunkHeaderSize <= end; ++i) {
        Chunk chunk;
        if (!ReadChunkHeader(&chunk)) return false;
        if (chunk.size < kChunkHeaderSize) break;
        const int64 chunk_end = std::min(chunk.start + chunk.size, end);
        chunk.size = static_cast<int32>(chunk_end - chunk.start);
        if (!ReadChunkData(chunk) || !input_.Skip(chunk_end - input_.Position())) return false;
    }
    return GoToEnd();
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
    if (rules_ == FliRules::kDefined && !canvas_->Take(previous->bitmap, work_)) {
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
    chunk->start = input_.Position();
    if (!input_.Read(header)) return false;
    chunk->size = static_cast<int32>(ReadLittle32(header));
    chunk->type = ReadLittle16(header + 4);
    return true;
}

int64 FliDecoder::Chunk::DataSize() const {
    return size - kChunkHeaderSize;
}

bool FliDecoder::ReadChunkData(const Chunk& chunk) {
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
            return ReadFliCOPYChunk(chunk.DataSize());
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

// Gives the frame its pixels.
bool FliDecoder::FinishFrame() {
    frame_.bitmap = canvas_->MakePicture(work_);
    if (!frame_.bitmap) {
        out_of_memory_ = !work_.StopRequested();
        return false;
    }
    frame_.palette = local_palette_;
    return !work_.StopRequested();
}

// The document's first frame defines the global palette, any other frame one of its own. Pixels
// already drawn keep their colors either way.
bool FliDecoder::ReadFliCOLORChunk(int64 size, bool full8bit) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    // By the defined rules six bits are deliberately not widened to reach 255.
    const bool widen = !full8bit && rules_ == FliRules::kPlayers;
    const int32 factor = full8bit ? 1 : 4;
    if (place_->defines_global) {
        MarkReadFromFile(&global_);
        ReadFliColors(data, factor, &global_.colors, widen);
        return true;
    }
    if (!frame_.local_palette && !TakePreviousPalette()) return false;
    ReadFliColors(data, factor, &local_palette_->colors, widen);
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
    DrawLcChunk(reader, writer, work_);
    frame_.damaged |= reader.Overrun();
    return true;
}

bool FliDecoder::ReadFliBRUNChunk(int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = Writer();
    DrawBrunChunk(reader, writer, width_, height_, rules_, work_);
    frame_.damaged |= reader.Overrun();
    return true;
}

// Takes one byte a pixel, by the defined rules whatever the chunk's size says.
bool FliDecoder::ReadFliCOPYChunk(int64 size) {
    const int64 whole = int64{width_} * height_;
    std::span<const uint8> data;
    if (!input_.ReadBlock(rules_ == FliRules::kDefined ? whole : std::min(size, whole), &data))
        return false;
    FliPixelWriter writer = Writer();
    DrawCopyChunk(data, writer, width_, work_);
    frame_.damaged |= data.size() < static_cast<uint64>(whole);
    return true;
}

bool FliDecoder::ReadFliDELTAChunk(int64 size) {
    std::span<const uint8> data;
    if (!input_.ReadBlock(size, &data)) return false;
    ByteReader reader(data);
    FliPixelWriter writer = Writer();
    DrawDeltaChunk(reader, writer, width_, rules_, work_);
    frame_.damaged |= reader.Overrun();
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
    if (rules_ == FliRules::kDefined) canvas_->SetTable(CurrentTable());
    return FliPixelWriter(*canvas_);
}

PixelTable FliDecoder::CurrentTable() const {
    return PixelTableOf((frame_.local_palette ? *local_palette_ : global_).colors);
}

// The file's first picture starts black, which to players is what index 0 stands for, but only once
// there is something to draw into it: until then a few bytes that claim a huge picture cost no
// memory.
void FliDecoder::StartPicture() {
    if (!blank_) return;
    blank_ = false;
    if (rules_ == FliRules::kPlayers) {
        canvas_->Clear();
        return;
    }
    canvas_->SetTable(CurrentTable());
    canvas_->Blacken();
}

}  // namespace kirto
