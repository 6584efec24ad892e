#pragma once

#include <memory>
#include <optional>
#include <string>

#include "animation/frame.h"
#include "base/types.h"
#include "color/palette.h"
#include "formats/fli/fli_decoder.h"
#include "formats/gif/harmless_cause.h"

namespace kirto {

// A record of a FLI or FLC file that was read before its turn.
struct FliPiece {
    int32 index = 0;  // of the record or, to players, of the frame
    FliDecoder::Record kind = FliDecoder::Record::kBroken;
    Frame frame;                       // where there is one
    std::shared_ptr<Palette> palette;  // the frame's, to be completed
    bool repeats = false;              // picture and kind of palette of the frame before
    std::optional<Palette> global;     // the animation's, where it may have changed
    std::string lines;                 // that reading printed
    bool out_of_memory = false;        // as the decoder says of a broken one
    HarmlessCause cause = HarmlessCause::kNone;
};

// Reads the records of a FLI or FLC file ahead of the frames that are made of them, each over the
// one before. Used by one thread.
class FliAhead {
  public:
    // decoder: behind the header of a file with so many records or, to players, frames; outlives
    // this. previous: the frame in front of the position that the first one is to have, or null.
    FliAhead(FliDecoder& decoder, FliRules rules, int32 count, int32 position,
             FramePointer previous)
        : decoder_(decoder),
          rules_(rules),
          count_(count),
          position_(position),
          previous_(std::move(previous)) {}

    // The next record; nothing behind the last or a broken one.
    std::optional<FliPiece> Next();

  private:
    bool RepeatsPrevious(const Frame& frame) const;
    void Pass(FliPiece& piece);

    FliDecoder& decoder_;
    const FliRules rules_;
    const int32 count_;
    int32 position_;         // of the next frame
    FramePointer previous_;  // in front of it; its palette is not complete
    int32 index_ = 0;
    int32 frames_ = 0;  // that are shown, some of them as longer pauses
};

}  // namespace kirto
