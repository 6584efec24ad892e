#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "animation/frame_areas.h"
#include "base/shared_progress.h"
#include "color/adaptive/adaptive_mapper.h"
#include "color/adaptive/color_census.h"
#include "document/animation_document.h"
#include "formats/faithful/frame_planner.h"
#include "formats/faithful/frame_writer.h"
#include "kit/file.h"

namespace kirto {

// How an animation is written, besides what it says itself.
struct FaithfulOptions {
    bool interlaced = false;
    bool comment = false;           // with a comment of the program's own
    bool pause_in_seconds = false;  // the unit of the animation's pauses; else hundredths
    bool joint_colors = false;      // frames of too many colors share those they are given
    bool one_table = false;         // all frames share them where they are too many together
    int32 most_colors = 256;        // of one frame, 2 to 256
    FrameAreas areas = FrameAreas::kChanged;
    int64 tolerance = 0;  // colors may be so far off, squared, where it saves bytes
    AdaptiveDither dither = AdaptiveDither::kErrorDiffusion;
    int32 dither_strength = 100;  // percent
    rgb_color matte{255, 255, 255, 255};
    uint8 threshold = AlphaMatte::kFirstVisible;  // pixels of less alpha are transparent
    std::vector<rgb_color> exact_colors;          // that stay as they are; different ones

    // What is laid on what, and what is left out.
    AlphaMatte Matte() const { return AlphaMatte(matte, true, threshold); }
    static FaithfulOptions Of(const Prefs& prefs);
};

// What is written, and what for.
struct FaithfulGifTask {
    std::shared_ptr<const Animation> animation;
    FaithfulOptions options;
    uint64 memory_limit = 0;  // bytes that a screen may take
    Work& work;               // hears how far it is; outlives the task
    // Told what is done, on the working thread; may be empty.
    std::function<void(const std::string&)> status;
};

// Writes an animation as a GIF file in which browsers show what the editor's window shows, as long
// as so many colors do for what is new in each frame, and in as few bytes as it finds. First all
// frames are planned, then they are encoded, both by several threads; the bytes do not depend on
// their number. The constructor does all the work; when that is stopped the file is not complete.
// Write results are not checked here: the file remembers its first error. Throws std::bad_alloc.
class FaithfulGifSave {
  public:
    // file: empty and writable; this object shares it with the caller, who commits it afterward.
    FaithfulGifSave(std::shared_ptr<BFile> file, FaithfulGifTask task);
    // The document's animation, as it is at the start, by its settings and its work.
    FaithfulGifSave(std::shared_ptr<BFile> file, AnimationDocument& document);

    const Nearness& HowNear() const { return planner_->HowNear(); }

  private:
    // What a frame's pixels become before they are planned.
    struct Prepared {
        std::shared_ptr<const ScreenPixels> shown;
        std::shared_ptr<const ScreenPixels> reduced;
    };

    bool Stopped() const { return task_.work.StopRequested(); }
    bool SharesColors() const { return task_.options.joint_colors || task_.options.one_table; }
    bool DrawsWhole() const { return task_.options.areas == FrameAreas::kWhole; }
    std::vector<rgb_color> JointColors() const;
    std::vector<rgb_color> JointColors(const ColorCensus& census) const;
    void Plan();
    bool IsWanted(size_t frame) const;
    Prepared Prepare(size_t frame) const;
    FrameToPlan ToPlan(size_t frame, const Prepared& prepared) const;
    void ChooseLayout();
    void WriteHeader();
    void WriteImages();
    void Write(const ByteWriter& bytes);

    const std::shared_ptr<BFile> file_;
    const FaithfulGifTask task_;
    const std::vector<FramePointer> frames_;
    const std::vector<bool> untouched_;
    const std::vector<uint16> delays_;
    const Screen screen_;
    SharedProgress progress_;
    std::unique_ptr<const ColorReducer> reducer_;
    std::unique_ptr<FramePlanner> planner_;
    FileLayout layout_;
};

}  // namespace kirto
