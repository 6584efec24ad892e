#pragma once

#include "base/types.h"
#include "document/animation_document.h"
#include "formats/fli/fli_ahead.h"
#include "formats/fli/fli_decoder.h"
#include "kit/file.h"

// Reads a FLI or FLC animation into a document, one Frame per displayed frame, as defined or, with
// the setting "animation_faithful", as players do. The constructor does
// all the work: the editing thread draws the frames, some of them ahead, while others make their
// palettes; frames are inserted as soon as they are complete and stay when a later one fails.
class FliLoad {
  public:
    bool failed = false;         // decoding ended before the last frame
    bool out_of_memory = false;  // it ran out of memory; the file may be intact
    // Why it failed where players would not mind.
    kirto::HarmlessCause harmless_cause = kirto::HarmlessCause::kNone;

    // file: at its start, not owned. start: document position of the first frame.
    FliLoad(BFile* file, int32 start, AnimationDocument& document);

    // Position just past the last inserted frame.
    int32 End() const { return position_; }

  private:
    void TakeHeader(const kirto::FliHeader& header);
    // What a piece becomes on any thread.
    struct Finished {
        Palette palette;  // of a frame without one of its own
        status_t status = B_OK;
    };

    void ReadFrames(int32 count);
    bool BeginPiece(const kirto::FliPiece& piece, int32 count);
    Finished Finish(const kirto::FliPiece& piece) const;
    bool TakePiece(const kirto::FliPiece& piece, const Finished& finished);
    void CompletePalette(const kirto::FliPiece& piece, const Finished& finished);
    bool ShowPreviousFrameLonger();
    void CommitPalette(const Palette& global);

    AnimationDocument& document_;
    const kirto::FliRules rules_;
    kirto::FliDecoder decoder_;
    int32 position_;
    double pause_ = 0.0;  // after each frame, in the unit of the settings
    Finished last_;       // what the last frame's palette became
};
