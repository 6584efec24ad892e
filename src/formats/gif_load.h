#pragma once

#include "document/animation_document.h"
#include "document/frame.h"
#include "platform/file.h"
#include "platform/types.h"

// Reads a GIF file (87a or 89a) into a document, one Frame an image. The construction does all the
// work on the editing thread; each frame is inserted as soon as it is decoded and stays when a
// later one fails. The methods stand in the order of the file; the layout is described in
// docs/formats/gif.md.
class GifLoad {
  public:
    bool failed = false;         // decoding ended before the trailer
    bool out_of_memory = false;  // it ended for lack of memory; the file may be sound

    // file: at its start, not owned. start: document position and number of the first frame.
    GifLoad(BFile* file, int32 start, AnimationDocument& document);

    // Position just past the last inserted frame.
    int32 End() const { return next_position_; }

  private:
    void Init();
    bool ReadGifHeader();
    bool ReadBlock(uint8 introducer);
    bool ReadImage();
    bool ReadExtension();
    bool ReadGifLoopBlock();
    bool ReadGifControlBlock(Frame* frame);
    bool ReadGifCommentBlock();
    bool ReadGifUnknownBlock(uint8 label);
    bool ReadGifImageHeader(Frame* frame, int32 relative, int32 absolute);
    bool FrameDisposal(Frame* frame, int32 relative, int32 absolute);
    bool FillBackground(Frame* frame);
    bool ReadGifImageData(Frame* frame, int32 relative);
    bool ReadCodeSize(Frame* frame, int32* min_code_size);
    bool ReadColorTable(Palette* palette, int32 bits);
    bool SkipSubBlocks();
    std::unique_ptr<Frame> NewFrame();
    rgb_color BackgroundColor() const;

    BFile* file_;
    AnimationDocument& document_;
    const int32 start_;
    int32 next_position_;
    const bool full_frame_;
    Palette* current_palette_ = nullptr;  // the frame's local one, else the document's; not owned
    bool interlaced_ = false;
    int32 current_disposal_ = -1;  // -1: no control block seen yet
    int32 previous_disposal_ = -1;
    std::unique_ptr<Frame> frame_;  // the frame being filled, not yet inserted
};
