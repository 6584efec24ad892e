#include "animation/save_comparison.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "animation/gif_source.h"
#include "base/run_in_order.h"

namespace kirto {

namespace {

// Runs of a piece share what is known of their rows.
constexpr size_t kRunsOfAPiece = 16;
// What a file keeps of a pause is a whole hundredth, which may come sooner or later by half a one.
constexpr double kTolerance = 0.5 + 1e-6;

int64 PlaysOf(const Animation& animation) {
    return animation.use_loop ? animation.loop_count : 1;
}

// Whether an image of the file may leave pixels as they were. Of what is not known it may.
bool MayBeTransparent(const Frame& frame) {
    return !frame.source || frame.source->transparent_index >= 0;
}

// Whether so many pixels that are left of other frames catch the eye: a block of 8 x 8, or a
// thousandth of a small picture.
bool IsSeen(int64 left, int64 compared) {
    constexpr int64 kBlock = 64;
    constexpr int64 kPart = 1000;
    return left >= kBlock || left * kPart >= compared;
}

}  // namespace

SaveComparison::SaveComparison(const Animation& saved, const Animation& read,
                               const Options& options, const Work* work)
    : saved_(saved), read_(read), options_(options), work_(work) {}

SaveDifferences SaveComparison::Compare() {
    result_ = {};
    result_.frames = saved_.frames.Size();
    PairFrames();
    if (!read_.frames.Empty()) CompareWholes();
    if (!result_.other_frames) {
        ComparePauses();
        ComparePictures();
    }
    return IsStopped(work_) ? SaveDifferences() : result_;
}

// A file may have one image for frames that show the same.
void SaveComparison::PairFrames() {
    const double unit = options_.pauses_in_seconds ? 100 : 1;
    const bool together = saved_.frames.Size() != read_.frames.Size();
    saved_runs_ = RunsOf(saved_, unit, together);
    read_runs_ = RunsOf(read_, 1, together);
    if (saved_runs_.size() != read_runs_.size())
        result_.other_frames = static_cast<int32>(read_runs_.size());
}

SaveComparison::Runs SaveComparison::RunsOf(const Animation& animation, double unit,
                                            bool together) const {
    Runs runs;
    FramePointer before;
    int32 i = 0;
    for (const FramePointer& frame : animation.frames) {
        if (IsStopped(work_)) return {};
        const double pause = animation.PauseOf(*frame) * unit;
        if (together && before && ShowTheSame(*before, *frame)) {
            ++runs.back().count;
            runs.back().pause += pause;
        } else {
            runs.push_back({i, 1, pause});
        }
        before = frame;
        ++i;
    }
    return runs;
}

void SaveComparison::CompareWholes() {
    if (saved_.width != read_.width || saved_.height != read_.height)
        result_.other_size = {read_.width, read_.height};
    if (PlaysOf(saved_) != PlaysOf(read_)) result_.other_plays = {PlaysOf(saved_), PlaysOf(read_)};
    if (read_.frames.Size() == 1) return;
    for (const FramePointer& frame : read_.frames)
        result_.short_pauses += read_.PauseOf(*frame) < kLeastReliablePause ? 1 : 0;
}

// Pauses that are no whole hundredths may be spread over the frames, so that each frame begins when
// it should.
void SaveComparison::ComparePauses() {
    double late = 0;
    for (size_t i = 0; i < saved_runs_.size(); ++i) {
        late += read_runs_[i].pause - saved_runs_[i].pause;
        if (std::abs(late) <= kTolerance) continue;
        result_.repaused += saved_runs_[i].count;
        late = 0;
    }
}

void SaveComparison::ComparePictures() {
    size_t fetched = 0;
    OrderedSteps<Piece, std::vector<PixelDifferences>> steps;
    steps.next = [&]() -> std::optional<Piece> {
        if (fetched == saved_runs_.size()) return std::nullopt;
        const size_t begin = fetched;
        fetched = std::min(begin + kRunsOfAPiece, saved_runs_.size());
        return Piece{begin, fetched};
    };
    steps.work = [this](const Piece& piece, int32) { return ComparePiece(piece); };
    steps.take = [this](const Piece& piece, std::optional<std::vector<PixelDifferences>> pixels) {
        if (!pixels || IsStopped(work_)) return false;
        for (size_t i = 0; i < pixels->size(); ++i)
            TakeRun(piece.begin + i, (*pixels)[i]);
        return true;
    };
    RunInOrder(steps);
}

std::vector<PixelDifferences> SaveComparison::ComparePiece(const Piece& piece) const {
    FrameComparison comparison(saved_.width, saved_.height, options_.parts, work_,
                               options_.threshold);
    std::vector<PixelDifferences> pixels;
    for (size_t i = piece.begin; i < piece.end && !IsStopped(work_); ++i) {
        const FramePointer saved = saved_.frames.At(saved_runs_[i].first);
        const FramePointer read = read_.frames.At(read_runs_[i].first);
        pixels.push_back(comparison.Compare(*saved, *read->bitmap));
    }
    return pixels;
}

// That the frame was reduced to.
int32 SaveComparison::ColorsOf(const Frame& saved, const Frame& read) const {
    if (options_.own_palettes && read.source && read.source->table)
        return static_cast<int32>(read.source->table->size());
    return (saved.local_palette ? *saved.palette : *saved_.palette).size;
}

void SaveComparison::TakeRun(size_t i, const PixelDifferences& pixels) {
    const Run& run = saved_runs_[i];
    const FramePointer saved = saved_.frames.At(run.first);
    const FramePointer read = read_.frames.At(read_runs_[i].first);
    const bool trails = pixels.outside > 0 || (pixels.filled > 0 && MayBeTransparent(*read));
    const int64 left = pixels.outside + pixels.filled;
    if (trails) {
        (IsSeen(left, pixels.compared) ? result_.trailing : result_.specked) += run.count;
        result_.most_left = std::max(result_.most_left, left);
    } else if (pixels.filled > 0) {
        result_.filled += run.count;
    }
    if (pixels.holes > 0) result_.holed += run.count;
    result_.pixels += pixels.compared * run.count;
    result_.recolored += pixels.recolored * run.count;
    result_.distance += pixels.distance * run.count;
    if (pixels.recolored > 0)
        result_.most_colors = std::max(result_.most_colors, ColorsOf(*saved, *read));
    if (pixels.Any()) result_.pairs.push_back({run.first, read_runs_[i].first});
}

}  // namespace kirto
