#include "formats/faithful/faithful_gif_save.h"

#include <algorithm>
#include <new>
#include <optional>
#include <set>
#include <utility>

#include "base/byte_order.h"
#include "base/core_text.h"
#include "base/run_in_order.h"
#include "base/text.h"
#include "color/adaptive/adaptive_palette.h"
#include "color/color_text.h"
#include "formats/faithful/frame_delays.h"
#include "formats/faithful/untouched_frames.h"
#include "formats/gif/gif_extensions.h"

namespace kirto {

namespace {

constexpr int32 kLargestSide = 0xFFFF;
// Colors that are kept, so that most of a table is left for the others.
constexpr size_t kMostExact = 64;
// Of the work that a frame is, planning and encoding are so much.
constexpr int64 kPlanned = 1;
constexpr int64 kEncoded = 3;

int32 SideOf(int32 canvas, int64 needed) {
    return static_cast<int32>(std::clamp<int64>(std::min<int64>(canvas, needed), 1, kLargestSide));
}

// No larger than what any frame shows, so that a few pixels take no memory for many; all of the
// canvas where each image is to have that.
Screen ScreenFor(const Animation& animation, const FaithfulOptions& options, uint64 memory_limit) {
    const bool whole = options.areas == FrameAreas::kWhole;
    int64 right = whole ? animation.width : 0;
    int64 bottom = whole ? animation.height : 0;
    for (const FramePointer& frame : animation.frames) {
        right = std::max(right, int64{frame->x_offset} + frame->width);
        bottom = std::max(bottom, int64{frame->y_offset} + frame->height);
    }
    const Screen screen(SideOf(animation.width, right), SideOf(animation.height, bottom),
                        options.Matte());
    if (screen.At(0, screen.Height()) * sizeof(uint32) > memory_limit) throw std::bad_alloc();
    return screen;
}

// Whether the strips, by what they have counted, have no more colors than an image; with alpha or
// not.
bool HasFewColors(const Frame& frame, size_t most) {
    if (!frame.bitmap) return true;
    std::set<uint32> pixels;
    for (const auto& strip : frame.bitmap->AllStrips()) {
        if (strip->Pixels()) return false;
        const bool few = strip->AllCounts([&](const PixelCount& item) {
            pixels.insert(item.pixel);
            return pixels.size() <= most;
        });
        if (!few) return false;
    }
    return true;
}

AdaptiveDither DitherOf(int32 setting) {
    switch (setting) {
        case 1:
            return AdaptiveDither::kErrorDiffusion;
        case 2:
            return AdaptiveDither::kOrdered;
        default:
            return AdaptiveDither::kNone;
    }
}

}  // namespace

FaithfulOptions FaithfulOptions::Of(const Prefs& prefs) {
    FaithfulOptions options;
    options.interlaced = prefs.animation_gifinterlaced;
    options.comment = prefs.animation_gifcomment;
    options.pause_in_seconds = prefs.global_pauseinseconds;
    options.joint_colors = prefs.animation_jointcolors;
    options.dither = DitherOf(prefs.animation_dithering);
    const int32 matte = prefs.animation_matte;
    options.matte = {LowByte(matte >> 16), LowByte(matte >> 8), LowByte(matte), 255};
    options.threshold = static_cast<uint8>(std::clamp(prefs.animation_threshold, 0, 255));
    ParseColors(prefs.animation_exactcolors, kMostExact, &options.exact_colors);
    return options;
}

FaithfulGifSave::FaithfulGifSave(std::shared_ptr<BFile> file, AnimationDocument& document)
    : FaithfulGifSave(
          std::move(file),
          FaithfulGifTask{document.Current(), FaithfulOptions::Of(document.prefs),
                          document.pixel_budget->Limit(), document.work,
                          [&document](const std::string& text) { document.PostStatus(text); }}) {}

FaithfulGifSave::FaithfulGifSave(std::shared_ptr<BFile> file, FaithfulGifTask task)
    : file_(std::move(file)),
      task_(std::move(task)),
      frames_(task_.animation->frames.begin(), task_.animation->frames.end()),
      untouched_(DrawsWhole() ? std::vector<bool>(frames_.size())
                              : UntouchedFrames(*task_.animation)),
      delays_(SpreadDelays(*task_.animation, task_.options.pause_in_seconds)),
      screen_(ScreenFor(*task_.animation, task_.options, task_.memory_limit)),
      progress_(task_.work, static_cast<int64>(frames_.size()) * (kPlanned + kEncoded)),
      reducer_(std::make_unique<ColorReducer>(
          screen_,
          ColorReducer::Options{.dither = task_.options.dither,
                                .dither_strength = task_.options.dither_strength,
                                .most_colors = task_.options.most_colors,
                                .common = SharesColors() ? JointColors() : std::vector<rgb_color>{},
                                .always_common = task_.options.one_table,
                                .exact = task_.options.exact_colors},
          task_.work)),
      planner_(std::make_unique<FramePlanner>(screen_, *reducer_, task_.options.areas)) {
    Plan();
    ChooseLayout();
    WriteHeader();
    WriteImages();
    file_->Write(";", 1);
    file_->SetMimeType("image/gif");
}

// None where all frames together do with so many.
std::vector<rgb_color> FaithfulGifSave::JointColors() const {
    ColorCensus census(task_.options.Matte(), &task_.work);
    for (const FramePointer& frame : frames_) {
        if (!frame->bitmap || !frame->bitmap->HasRows()) continue;
        const status_t counted = census.Add(*frame->bitmap);
        if (counted == B_NO_MEMORY) throw std::bad_alloc();
        if (counted != B_OK) return {};
    }
    if (task_.options.one_table &&
        census.Colors().size() <= static_cast<size_t>(task_.options.most_colors))
        return {};
    return JointColors(census);
}

std::vector<rgb_color> FaithfulGifSave::JointColors(const ColorCensus& census) const {
    AdaptivePalette palette;
    const status_t made = palette.Make(
        census.Colors(), std::min(ColorReducer::kMostColors, task_.options.most_colors),
        ColorReducer::Occurring(task_.options.exact_colors, census.Colors()), &task_.work);
    if (made == B_NO_MEMORY) throw std::bad_alloc();
    return {palette.Colors().begin(), palette.Colors().end()};
}

void FaithfulGifSave::Plan() {
    size_t next = 0;
    OrderedSteps<size_t, Prepared> steps;
    steps.next = [&] { return next < frames_.size() ? std::optional(next++) : std::nullopt; };
    steps.begin = [&](size_t) {
        progress_.Tell();
        return !Stopped();
    };
    steps.work = [&](size_t frame, int32) { return std::optional(Prepare(frame)); };
    steps.waiting = [&] { progress_.Tell(); };
    steps.take = [&](size_t frame, std::optional<Prepared> prepared) {
        if (prepared && !Stopped()) planner_->Add(ToPlan(frame, *prepared));
        progress_.Add(kPlanned);
        return prepared.has_value();
    };
    RunInOrder(steps);
}

// Whether planning looks at the frame's pixels.
bool FaithfulGifSave::IsWanted(size_t frame) const {
    return !untouched_[frame] || (frame + 1 < frames_.size() && !untouched_[frame + 1]);
}

FaithfulGifSave::Prepared FaithfulGifSave::Prepare(size_t frame) const {
    Prepared prepared;
    if (!IsWanted(frame)) return prepared;
    ScreenPixels shown = screen_.Show(ScreenImage::Of(*frames_[frame]));
    if (!untouched_[frame] && !HasFewColors(*frames_[frame], reducer_->MostExact())) {
        const ScreenPixels before = frame > 0 && !DrawsWhole()
                                        ? screen_.Show(ScreenImage::Of(*frames_[frame - 1]))
                                        : screen_.Empty();
        const auto few =
            ColorsToDraw(screen_, screen_.Whole(), before, shown, reducer_->MostExact());
        if (!few)
            prepared.reduced = std::make_shared<ScreenPixels>(reducer_->Reduce(before, shown));
    }
    prepared.shown = std::make_shared<ScreenPixels>(std::move(shown));
    return prepared;
}

FrameToPlan FaithfulGifSave::ToPlan(size_t frame, const Prepared& prepared) const {
    FrameToPlan to_plan;
    to_plan.image = ScreenImage::Of(*frames_[frame]);
    to_plan.delay = delays_[frame];
    if (untouched_[frame]) to_plan.source = frames_[frame]->source;
    to_plan.shown = prepared.shown;
    to_plan.reduced = prepared.reduced;
    return to_plan;
}

void FaithfulGifSave::ChooseLayout() {
    layout_.interlaced = task_.options.interlaced;
    layout_.tolerance = task_.options.tolerance;
    for (const FramePlan& plan : planner_->Plans()) {
        if (plan.source && !plan.source->local_table) layout_.given = plan.source->table;
        if (layout_.given) break;
    }
    const std::span<const rgb_color> given =
        layout_.given ? std::span<const rgb_color>(*layout_.given) : std::span<const rgb_color>();
    layout_.global_table = ChooseGlobalTable(planner_->Plans(), given);
}

void FaithfulGifSave::WriteHeader() {
    uint8 header[13] = {'G', 'I', 'F', '8', '9', 'a'};
    WriteLittle16(header + 6, task_.animation->width);
    WriteLittle16(header + 8, task_.animation->height);
    const GifTable& table = layout_.global_table;
    // Of the highest color resolution, unsorted.
    header[10] = 0x70;
    if (table.Size() > 0) header[10] = LowByte(0xF0 | (table.Bits() - 1));
    file_->Write(header, sizeof(header));
    ByteWriter bytes;
    if (table.Size() > 0) table.Write(&bytes);
    if (task_.animation->use_loop) AppendLoopBlock(task_.animation->loop_count, &bytes);
    if (task_.options.comment) AppendCommentBlock(&bytes);
    Write(bytes);
}

void FaithfulGifSave::WriteImages() {
    const FramePlans& plans = planner_->Plans();
    const int32 count = static_cast<int32>(plans.size());
    const int32 threads = std::clamp(count, 1, ThreadCount());
    std::vector<std::unique_ptr<FrameWriter>> writers;
    while (static_cast<int32>(writers.size()) < threads)
        writers.push_back(std::make_unique<FrameWriter>(screen_, plans, layout_, task_.work));
    int32 next = 0;
    OrderedSteps<int32, ByteWriter> steps;
    steps.next = [&] { return next < count ? std::optional(next++) : std::nullopt; };
    steps.begin = [&](int32 plan) {
        if (task_.status)
            task_.status(CoreText::With(CoreText::tr("Status: writing frame %1 of %2..."),
                                        {std::to_string(plan + 1), std::to_string(count)}));
        progress_.Tell();
        return !Stopped();
    };
    steps.work = [&](int32 plan, int32 worker) {
        return std::optional(writers[static_cast<size_t>(worker)]->Encode(plan));
    };
    steps.waiting = [&] { progress_.Tell(); };
    steps.take = [&](int32, std::optional<ByteWriter> bytes) {
        if (bytes) Write(*bytes);
        progress_.Add(kEncoded);
        return bytes.has_value();
    };
    RunInOrder(steps, threads);
}

void FaithfulGifSave::Write(const ByteWriter& bytes) {
    file_->Write(bytes.Written().data(), bytes.Written().size());
}

}  // namespace kirto
