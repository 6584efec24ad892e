#pragma once

#include <memory>

#include "animation/frame.h"
#include "base/byte_reader.h"
#include "base/types.h"
#include "base/work.h"
#include "formats/fli/fli_canvas.h"
#include "formats/fli/fli_chunks.h"
#include "formats/fli/fli_input.h"
#include "formats/fli/fli_pixel_writer.h"
#include "formats/gif/harmless_cause.h"
#include "kit/file.h"

namespace kirto {

// What a FLI or FLC file says of the whole animation.
struct FliHeader {
    int32 frame_count = 0;  // records that may be read
    int32 width = 0;        // of all pictures
    int32 height = 0;
    double seconds = 0;     // that each frame is shown
    double hundredths = 0;  // of a second, the same without a rounding error where it is whole
};

// Decodes a FLI or FLC animation record by record: bytes in, frames out, each at full size. The
// methods are in the order of the file; the layout is described in docs/formats/fli.md.
class FliDecoder {
  public:
    enum class Record {
        kFrame,
        kLonger,   // the frame before is shown once more as long
        kSkipped,  // nothing to show
        kBroken
    };
    // Where in an animation a record's frame is to stand.
    struct Place {
        FramePointer previous;        // the frame before it; may be null
        bool defines_global = false;  // it is the first one: its colors are the animation's
    };

    // file: at its start, outlives this. global: the animation's palette so far. The budget counts
    // the frames' pixels; the work may be stopped within a record.
    FliDecoder(BFile& file, FliRules rules, const Palette& global,
               std::shared_ptr<PixelBudget> budget, Work& work);

    // False when this is no such file.
    bool ReadFliHeader(FliHeader* result);
    // The record of this index: complete, where there is a frame, but for its palette. That one has
    // the colors of a frame with a palette of its own; what else there is to it depends on the
    // picture.
    Record ReadRecord(int32 index, const Place& place, Frame* frame,
                      std::shared_ptr<Palette>* palette);
    // As it is after the records read so far.
    const Palette& GlobalPalette() const { return global_; }
    // Whether the header or the last record broke off for lack of memory; the file may be intact.
    bool OutOfMemory() const { return out_of_memory_ || input_.RanOutOfMemory(); }
    // Why the last record is broken where players would not mind.
    HarmlessCause Cause() const { return cause_; }

  private:
    // size: of the chunk in the file, its header included; may be anything.
    struct Chunk {
        int64 start = 0;  // where the file has it
        int32 size = 0;
        uint16 type = 0;
        int64 DataSize() const;
    };

    bool ReadFliFrameHeader();
    Record ReadOtherRecord();
    bool ReadFLCNewFrame();
    bool GoToEnd();
    bool ReadFliFrameData(int32 index);
    bool ReadChunks();
    bool ReadChunksBySize();
    bool StartFrame(int32 index);
    int64 PictureWork() const;
    bool ChargeFrame(int64 picture_bytes);
    bool CopyPreviousFrame();
    void TakeLocalPalette(const Palette& source);
    bool ReadChunkHeader(Chunk* chunk);
    bool ReadChunkData(const Chunk& chunk);
    bool SkipUnknownChunk(const Chunk& chunk);
    bool FinishFrame();

    // The chunk readers. size: bytes of the chunk's data, as its header says. False when the file
    // holds fewer or a seek or an allocation fails.
    bool ReadFliCOLORChunk(int64 size, bool full8bit);
    bool TakePreviousPalette();
    bool ReadFliLCChunk(int64 size);
    bool ReadFliBRUNChunk(int64 size);
    bool ReadFliCOPYChunk(int64 size);
    bool ReadFliDELTAChunk(int64 size);
    bool ReadFliMINIChunk(int64 size);
    bool ReadFliBLACKChunk();
    FliPixelWriter Writer();
    PixelTable CurrentTable() const;
    void StartPicture();

    FliInput input_;
    const FliRules rules_;
    const std::shared_ptr<PixelBudget> budget_;
    Work& work_;
    Palette global_;
    const Place* place_ = nullptr;  // of the current record
    bool out_of_memory_ = false;
    HarmlessCause cause_ = HarmlessCause::kNone;
    int64 record_end_ = 0;        // where the current record ends, as it says
    int64 bytes_left_ = 0;        // of the current record, as far as its chunks are read
    int32 chunk_count_ = 0;       // of the current record
    bool led_back_ = false;       // the current record does not lie after all others
    bool skipped_block_ = false;  // the current record is of a type that is not shown
    bool blank_ = false;          // the current picture is still to be filled with black
    int32 width_ = 0;             // of all pictures
    int32 height_ = 0;
    // The frame being read, and its own palette, in force where the frame is marked local.
    Frame frame_;
    std::shared_ptr<Palette> local_palette_;
    std::unique_ptr<FliCanvas> canvas_;  // made with the first frame
};

}  // namespace kirto
