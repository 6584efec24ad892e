#pragma once

#include "animation/frame.h"
#include "base/types.h"
#include "document/animation_document.h"
#include "kit/watched_input.h"

// Reads a GIF file (87a or 89a) into a document, one Frame per image. The constructor does all the
// work, on the editing thread; each frame is inserted as soon as it is decoded and stays when a
// later one fails. The methods are in the order of the file; the layout is described in
// docs/formats/gif.md.
class GifLoad {
  public:
    bool failed = false;         // decoding ended before the trailer
    bool out_of_memory = false;  // it ran out of memory; the file may be intact

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
    bool ReadGifControlBlock();
    bool ReadGifCommentBlock();
    bool ReadGifUnknownBlock(uint8 label);
    bool ReadGifImageHeader();
    bool FrameDisposal();
    bool FillBackground();
    bool ReadGifImageData();
    bool ReadCodeSize(int32* min_code_size);
    bool ReadColorTable(Palette* palette, int32 bits);
    bool SkipSubBlocks();
    bool StartFrame();
    bool FinishFrame();
    bool IsFirst() const { return next_position_ == start_; }
    bool CoversScreen() const;
    const Palette& CurrentPalette() const;
    rgb_color BackgroundColor() const;

    kirto::WatchedInput input_;
    AnimationDocument& document_;
    const int32 start_;
    int32 next_position_;
    const bool full_frame_;
    bool interlaced_ = false;
    int32 current_disposal_ = -1;  // -1: no control block seen yet
    int32 previous_disposal_ = -1;
    // What the file says of the whole animation, as far as it is read. Each block that changes it
    // puts it into the document.
    int32 width_ = 0;
    int32 height_ = 0;
    Palette global_palette_;
    // The frame being read, not yet inserted; its own palette, in force where the frame is marked
    // local; and its pixels.
    Frame frame_;
    std::shared_ptr<Palette> local_palette_;
    std::shared_ptr<BBitmap> picture_;
};
