#pragma once

#include <vector>

#include "animation/animation.h"
#include "animation/frame_comparison.h"
#include "animation/save_differences.h"
#include "base/types.h"
#include "base/work.h"

namespace kirto {

// Compares an animation with its file: what the editor shows with what was read again as browsers
// do. A plain function of the values, on several threads. Its cost depends on the pixels that
// frames do not share.
class SaveComparison {
  public:
    struct Options {
        bool parts = false;              // frames show a part of the screen, not all of it
        bool pauses_in_seconds = false;  // of the saved animation; else hundredths
        bool own_palettes = false;       // the file's are not those of the saved animation
        int32 threshold = FrameComparison::kHalf;  // of less alpha is what was left out
    };

    // read: its frames are of the screen's size, their pauses are their own, in hundredths. Both
    // outlive this. work: may be stopped at any time; null for nobody.
    SaveComparison(const Animation& saved, const Animation& read, const Options& options,
                   const Work* work = nullptr);

    // All zeros where the work was stopped. Throws std::bad_alloc when memory is short.
    SaveDifferences Compare();

  private:
    // Frames that stand one after the other and show the same.
    struct Run {
        int32 first = 0;
        int32 count = 1;
        double pause = 0;  // of all of them, hundredths
    };
    using Runs = std::vector<Run>;
    // So many runs are compared by one thread in one go.
    struct Piece {
        size_t begin = 0;
        size_t end = 0;
    };

    void CompareWholes();
    void PairFrames();
    Runs RunsOf(const Animation& animation, double unit, bool together) const;
    void ComparePauses();
    void ComparePictures();
    std::vector<PixelDifferences> ComparePiece(const Piece& piece) const;
    int32 ColorsOf(const Frame& saved, const Frame& read) const;
    void TakeRun(size_t i, const PixelDifferences& pixels);

    const Animation& saved_;
    const Animation& read_;
    const Options options_;
    const Work* const work_;
    Runs saved_runs_;
    Runs read_runs_;  // one for each of the saved, where the pictures are as many
    SaveDifferences result_;
};

}  // namespace kirto
