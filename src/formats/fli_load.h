#pragma once

#include <memory>
#include <span>
#include <vector>

#include "document/animation_document.h"
#include "document/frame.h"
#include "platform/file.h"
#include "platform/types.h"

// Reads a FLI or FLC animation into a document, one Frame a displayed frame, each at full size. The
// construction does all the work on the editing thread; frames are inserted as soon as they are
// complete and stay when a later one fails. The layout is described in docs/formats/fli.md.
class FliLoad {
  public:
    bool failed = false;  // decoding ended before the last frame

    // file: at its start, not owned. start: document position of the first frame.
    FliLoad(BFile* file, int32 start, AnimationDocument& document);

    // Position just past the last inserted frame.
    int32 End() const { return position_; }

  private:
    bool ReadFliHeader();
    bool ReadFliFrameHeader();
    bool ReadFliFrameData(int32 index, int32 position);
    bool ReadFLCNewFrame();
    bool ReadFliCOLORChunk(Frame* frame, int32 size, int32 position, bool full8bit);
    bool ReadFliLCChunk(Frame* frame, int32 size);
    bool ReadFliBRUNChunk(Frame* frame, int32 size);
    bool ReadFliCOPYChunk(Frame* frame);
    bool ReadFliDELTAChunk(Frame* frame, int32 size);
    bool ReadFliMINIChunk(int32 size);
    bool ReadFliBLACKChunk(Frame* frame);

    BFile* file_;
    AnimationDocument& document_;
    int32 position_;
    int32 frame_count_ = 0;
    int32 bytes_left_ = 0;       // of the current record
    int32 chunk_count_ = 0;      // of the current record
    bool skipped_block_ = false; // the current record is of type 0x00A1
};
