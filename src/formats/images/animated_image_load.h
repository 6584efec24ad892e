#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "base/allocation.h"
#include "document/animation_document.h"
#include "formats/gif/harmless_cause.h"
#include "kit/animated_image.h"
#include "kit/file.h"
#include "kit/translator_roster.h"

namespace kirto {

// Reads an animated WebP or APNG into a document, a Frame for each of its frames. The constructor
// does all the work: the editing thread draws the frames, others make their palettes ahead; each
// frame is inserted as soon as it is complete and stays when a later one fails. Each has a palette
// of its own, as its colors fit no common one, and its own pause. An empty document becomes as
// large as the canvas and loops as the file says; one that has frames grows where it is smaller.
class AnimatedImageLoad {
  public:
    bool failed = false;         // decoding ended before the last frame
    bool out_of_memory = false;  // it ran out of memory; the file may be intact
    // What programs show of a damaged file is up to them.
    static constexpr HarmlessCause harmless_cause = HarmlessCause::kNone;

    // file: at its start, not owned. start: document position of the first frame.
    AnimatedImageLoad(AnimatedImageFormat format, BFile* file, int32 start,
                      AnimationDocument& document, const BTranslatorRoster& roster);

    // The same for frames that come from elsewhere.
    AnimatedImageLoad(std::unique_ptr<AnimatedImageReader> reader, int32 start,
                      AnimationDocument& document);

    // Position just past the last inserted frame.
    int32 End() const { return position_; }

  private:
    struct Piece;
    struct Finished;

    bool ReadFile(BFile& file);
    void Load();
    void TakeHeader();
    void ReadFrames();
    std::optional<Piece> Draw();
    std::shared_ptr<const Picture> PictureOfCanvas();
    bool Take(const Piece& piece, std::optional<Finished> finished);
    void ShareOutPause(int32 start);
    void Fail(AnimatedImageReader::Result result);

    AnimationDocument& document_;
    int32 position_;
    AllocatedArray<uint8> bytes_;
    size_t size_ = 0;
    std::unique_ptr<AnimatedImageReader> reader_;
    AnimatedImageHeader header_;
    int32 drawn_ = 0;
    bool over_ = false;
    std::shared_ptr<const Picture> last_;  // drawn
    std::vector<uint32> row_;              // of the canvas
};

}  // namespace kirto
