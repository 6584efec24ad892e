#pragma once

#include <memory>
#include <optional>

#include "animation/frame.h"
#include "base/types.h"
#include "document/animation_document.h"
#include "formats/gif/gif_composer.h"
#include "formats/gif/gif_indices.h"
#include "formats/gif/gif_parser.h"
#include "formats/gif/gif_reader.h"
#include "formats/gif/harmless_cause.h"
#include "kit/file.h"
#include "kit/watched_input.h"

// Reads a GIF file into a document, one Frame per image, as defined or, with the setting
// "animation_faithful", as browsers do: parses it, decodes the images on several threads, composes
// them and commits what comes of it. The constructor does all the work, but for
// the decoding on the editing thread; each frame is inserted as soon as it is complete and stays
// when a later one fails.
class GifLoad {
  public:
    bool failed = false;         // decoding ended before the trailer
    bool out_of_memory = false;  // it ran out of memory; the file may be intact
    // Why it failed where browsers would not mind.
    kirto::HarmlessCause harmless_cause = kirto::HarmlessCause::kNone;

    // file: at its start, not owned. start: document position and number of the first frame.
    GifLoad(BFile* file, int32 start, AnimationDocument& document);

    // Position just past the last inserted frame.
    int32 End() const { return next_position_; }

  private:
    void Init();
    bool ReadScreen();
    void ReadFrames();
    void BeginPiece(const kirto::GifPiece& piece);
    // False when the load ends here.
    bool TakePiece(const kirto::GifPiece& piece, kirto::GifIndices* ahead);
    bool MayEndHere() const;
    bool TakeImage(const kirto::GifImage& image, kirto::GifIndices* ahead);
    bool StartFrame();
    bool FinishFrame();
    void CompletePalette();
    void TakeControl(const kirto::GifControl& control);
    void TakeLoop(int32 loop_count);
    void CommitPalette();
    void CommitSize();

    AnimationDocument& document_;
    kirto::WatchedInput input_;
    const kirto::GifRules rules_;
    kirto::GifParser parser_;
    const std::unique_ptr<kirto::GifComposer> composer_;
    const int32 start_;
    int32 next_position_;
    kirto::GifScreen screen_;
    bool damaged_ = false;  // the file ended too early, or with an image that can't be shown
    // The frame being read, not yet inserted, and its own palette, in force where the frame is
    // marked local.
    Frame frame_;
    std::shared_ptr<Palette> local_palette_;
    // What was found out about the last frame's picture.
    struct {
        std::shared_ptr<const kirto::Picture> picture;
        int32 unique_colors = 0;
        std::optional<Palette> optimal;
    } last_;
};
