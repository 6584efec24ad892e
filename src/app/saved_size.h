#pragma once

#include <functional>
#include <optional>

#include "document/animation_document.h"
#include "document/document_state.h"
#include "settings/prefs.h"

namespace kirto {

// Tells how many bytes a document would have as a GIF file, saved by its settings: the frames are
// encoded as a save would do it, and what comes of it is counted and thrown away. Says nothing to
// anybody. One thread at a time.
class SavedSize {
  public:
    // Asked after each run of frames, with their number so far: whether that is enough.
    using Enough = std::function<bool(int32 runs)>;

    explicit SavedSize(const DocumentState& state);

    // By a few runs of frames, spread over the animation: as if what changes grew or fell evenly
    // between them. Exact where it comes to all of them and the frames do not depend on each other.
    // Empty where the animation can't be saved, where memory is short, and when it was stopped.
    std::optional<int64> Estimate(const Enough& enough);
    // By all frames. Empty in the same cases.
    std::optional<int64> Exact();

    // Ends that early, and all that comes later. Safe on any thread.
    void RequestStop() { document_.RequestStop(); }

    // Whether it is certain that a save would write the same bytes for both.
    static bool IsSame(const DocumentState& a, const DocumentState& b);

  private:
    // The frames [begin, end).
    struct Run {
        int32 begin;
        int32 end;
    };
    void FindPalette();
    // The size of a file of nothing but these frames.
    std::optional<int64> SizeOf(Run run);
    // What the run adds to a file in which the frame before it is there already.
    std::optional<int64> Added(Run run);
    std::optional<int64> AddedByOthers(int32 others, const Enough& enough);

    Prefs settings_;
    AnimationDocument document_;  // whatever is encoded at the moment
    Animation animation_;         // with the colors that a save would find, once has_palette_
    bool has_palette_ = false;
    bool can_be_saved_ = false;
};

}  // namespace kirto
