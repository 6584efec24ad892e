#include "app/export/export_frames.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "base/run_in_order.h"
#include "effects/pictures/resize_edit.h"

namespace kirto {

namespace {

using ScaledPicture = std::shared_ptr<const Picture>;

// A picture at a place, which becomes another one by the size of its canvas.
struct ScaleJob {
    ScaledPicture picture;
    PictureVariant variant{};

    friend bool operator<(const ScaleJob& a, const ScaleJob& b) {
        return std::pair(a.picture.get(), a.variant) < std::pair(b.picture.get(), b.variant);
    }
};

// Rounded to the nearest.
int64 Part(int32 side, int32 percent) {
    return std::max<int64>((int64{side} * percent + 50) / 100, 1);
}

bool HasPicture(const Frame& frame) {
    return frame.bitmap && frame.bitmap->HasRows();
}

std::vector<ScaledPicture> MakeAll(const std::vector<ScaleJob>& jobs, const ResizeEdit& edit,
                                   const std::shared_ptr<PixelBudget>& budget, Work& work) {
    std::vector<ScaledPicture> made;
    size_t next = 0;
    OrderedSteps<size_t, ScaledPicture> steps;
    steps.next = [&] { return next < jobs.size() ? std::optional(next++) : std::nullopt; };
    steps.begin = [&](size_t i) {
        work.Report(static_cast<int64>(i), static_cast<int64>(jobs.size()));
        return !work.StopRequested();
    };
    steps.work = [&](size_t i, int32) -> std::optional<ScaledPicture> {
        ScaledPicture picture = edit.Make(*jobs[i].picture, jobs[i].variant, budget, work);
        return picture ? std::optional(std::move(picture)) : std::nullopt;
    };
    steps.waiting = [&] { work.ReportAgain(); };
    steps.take = [&](size_t, std::optional<ScaledPicture> picture) {
        if (!picture) return false;
        made.push_back(std::move(*picture));
        return true;
    };
    RunInOrder(steps);
    return made;
}

}  // namespace

Animation EveryNthFrame(const Animation& animation, int32 every) {
    Animation result = animation;
    if (every <= 1) return result;
    result.frames = {};
    result.several = {};
    for (int32 i = 0; i < animation.frames.Size(); i += every) {
        auto frame = std::make_shared<Frame>(*animation.frames.At(i));
        const int32 end = std::min(animation.frames.Size() - i, every) + i;
        frame->use_pause = true;
        frame->pause_length = 0;
        for (int32 j = i; j < end; ++j)
            frame->pause_length += animation.PauseOf(*animation.frames.At(j));
        result.frames.Insert(result.frames.Size(), std::move(frame));
    }
    result.selected = result.frames.Empty() ? -1 : 0;
    return result;
}

std::optional<Animation> Scaled(const Animation& animation, int32 percent,
                                const std::shared_ptr<PixelBudget>& budget, Work& work) {
    if (percent == 100) return animation;
    const int64 width = Part(animation.width, percent);
    const int64 height = Part(animation.height, percent);
    if (std::max(width, height) > kMostPixelsOfASide) return std::nullopt;
    const ResizeEdit edit(animation, static_cast<int32>(width), static_cast<int32>(height),
                          ScaleFilter::kLanczos);
    std::map<ScaleJob, size_t> known;
    std::vector<ScaleJob> jobs;
    std::vector<size_t> job_of;
    for (int32 i = 0; i < animation.frames.Size(); ++i) {
        const FramePointer frame = animation.frames.At(i);
        if (!HasPicture(*frame)) continue;
        const ScaleJob job{frame->bitmap, edit.PlanOf(animation, i).variant};
        const auto [place, is_new] = known.try_emplace(job, jobs.size());
        if (is_new) jobs.push_back(job);
        job_of.push_back(place->second);
    }
    const std::vector<ScaledPicture> made = MakeAll(jobs, edit, budget, work);
    if (made.size() != jobs.size()) return std::nullopt;
    Animation result = animation;
    edit.SetCanvas(result);
    size_t next = 0;
    for (int32 i = 0; i < animation.frames.Size(); ++i) {
        if (!HasPicture(*animation.frames.At(i))) continue;
        const PicturePlan plan = edit.PlanOf(animation, i);
        EditFrame(result, i, [&](Frame& frame) {
            frame.x_offset = plan.x_offset;
            frame.y_offset = plan.y_offset;
            frame.bitmap = made[job_of[next++]];
            frame.width = frame.bitmap->Width();
            frame.height = frame.bitmap->Height();
            frame.source = nullptr;
        });
    }
    return result;
}

}  // namespace kirto
