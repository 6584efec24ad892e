#pragma once

#include <memory>

#include "animation/frame.h"
#include "base/byte_reader.h"
#include "base/types.h"
#include "document/animation_document.h"
#include "formats/fli/fli_input.h"
#include "formats/fli/fli_pixel_writer.h"
#include "kit/file.h"

// Reads a FLI or FLC animation into a document, one Frame per displayed frame, each at full size.
// The constructor does all the work, on the editing thread; frames are inserted as soon as they are
// complete and stay when a later one fails. The methods are in the order of the file; the layout is
// described in docs/formats/fli.md.
class FliLoad {
  public:
    bool failed = false;         // decoding ended before the last frame
    bool out_of_memory = false;  // it ran out of memory; the file may be intact

    // file: at its start, not owned. start: document position of the first frame.
    FliLoad(BFile* file, int32 start, AnimationDocument& document);

    // Position just past the last inserted frame.
    int32 End() const { return position_; }

  private:
    // size: of the chunk in the file, its header included; may be anything.
    struct Chunk {
        int32 size = 0;
        uint16 type = 0;
        int64 DataSize() const;
    };

    bool ReadFliHeader();
    bool ReadFliFrameHeader();
    bool ReadRecord(int32 index);
    bool ReadFLCNewFrame();
    bool ShowPreviousFrameLonger();
    bool ReadFliFrameData(int32 index);
    bool StartFrame(int32 index);
    bool ChargeFrame(int64 picture_bytes);
    bool CopyPreviousFrame();
    void TakeLocalPalette(const Palette& source);
    bool ReadChunkHeader(Chunk* chunk);
    bool ReadChunk();
    bool SkipUnknownChunk(const Chunk& chunk);
    bool FinishFrame();

    // The chunk readers. size: bytes of the chunk's data, as its header says. False when the file
    // holds fewer or a seek or an allocation fails.
    bool ReadFliCOLORChunk(int64 size, bool full8bit);
    bool TakePreviousPalette();
    bool ReadFliLCChunk(int64 size);
    bool ReadFliBRUNChunk(int64 size);
    bool ReadFliCOPYChunk();
    bool ReadFliDELTAChunk(int64 size);
    bool ReadFliMINIChunk(int64 size);
    bool ReadFliBLACKChunk();
    // Whether there is more to draw of a chunk's data.
    bool GoesOn(const kirto::ByteReader& reader) const;
    kirto::FliPixelWriter Writer();
    void StartPicture();

    kirto::FliInput input_;
    AnimationDocument& document_;
    int32 position_;
    int32 frame_count_ = 0;
    int64 bytes_left_ = 0;        // of the current record, as far as its chunks are read
    int32 chunk_count_ = 0;       // of the current record
    bool led_back_ = false;       // the current record does not lie after all others
    bool skipped_block_ = false;  // the current record is of type 0x00A1
    bool blank_ = false;          // the current picture is still to be filled with black
    int32 width_ = 0;             // of all pictures
    int32 height_ = 0;
    double pause_ = 0.0;  // after each frame, in the unit of the settings
    // The frame being read, not yet inserted; its own palette, in force where the frame is marked
    // local; and its pixels.
    Frame frame_;
    std::shared_ptr<Palette> local_palette_;
    std::shared_ptr<BBitmap> picture_;
};
