#pragma once

#include <exception>
#include <mutex>
#include <optional>
#include <vector>

#include "base/types.h"
#include "base/work.h"
#include "formats/gif/gif_composer.h"
#include "formats/gif/gif_indices.h"
#include "formats/gif/gif_reader.h"

namespace kirto {

// Reads and decodes the images of a GIF file ahead of the thread that makes frames of them, for
// that one and others. Where several threads work together, small images go from one to the other
// in batches: a batch is worth more than what it costs to hand it over.
class GifAhead {
  public:
    struct Options {
        bool full_frame = false;   // frames of the screen's size, else of their image's
        bool transparent = false;  // indices may be transparent from the first image on
        bool together = false;     // several threads work
    };
    using Batch = std::vector<GifPiece>;
    using Decoded = std::vector<GifIndices>;

    // reader: behind the screen. composer: of the frames, told of the screen; it says how images
    // are decoded. All outlive this.
    GifAhead(GifReader& reader, const GifComposer& composer, const GifScreen& screen,
             const Options& options, Work& work)
        : reader_(reader),
          composer_(composer),
          screen_(screen),
          options_(options),
          work_(work),
          transparent_(options.transparent) {}

    // The next pieces, one or more; nothing after the last one. For one thread.
    std::optional<Batch> Next();
    // The indices of each piece, without room where its image is not to be decoded yet, or not at
    // all; nothing when memory is short. On any thread.
    std::optional<Decoded> Decode(const Batch& batch);
    // Takes indices that are not needed any more, for the sake of their room. On any thread.
    void TakeBack(GifIndices indices);

  private:
    void AddNext(Batch* batch);
    static bool CanDecode(const GifImage& image);
    bool CoversFrame(const GifPiece& piece) const;
    bool Decode(const GifPiece& piece, GifIndices* indices, const GifIndices* before);
    GifIndices Spare();

    GifReader& reader_;
    const GifComposer& composer_;
    const GifScreen& screen_;
    const Options options_;
    Work& work_;
    bool transparent_;
    std::exception_ptr thrown_;  // while a batch was read that had pieces
    std::mutex mutex_;           // guards what follows
    Decoded spare_;
};

}  // namespace kirto
