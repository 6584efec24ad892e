#include "effects/pictures/edit_pictures.h"

#include <map>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "base/core_text.h"
#include "base/run_in_order.h"
#include "base/text.h"
#include "effects/pictures/share_strips.h"
#include "kit/alert.h"

namespace kirto {

namespace {

// A picture that is to be made.
struct Job {
    std::shared_ptr<const Picture> picture;
    PictureVariant variant{};
    bool wants_palette = false;  // since a frame that shows it has an optimal one
};

struct EditedPicture {
    std::shared_ptr<const Picture> bitmap;
    Palette palette;  // optimal, where one is wanted
    status_t palette_status = B_OK;
};

struct PlannedFrame {
    int32 position = 0;
    PicturePlan plan;
    size_t job = 0;  // where the picture is not kept
};

class PictureRun {
  public:
    PictureRun(AnimationDocument& document, const PictureEdit& edit)
        : document_(document), edit_(edit), before_(document.Current()) {}

    void Plan(const FrameSet& frames);
    // False when not all pictures have been made.
    bool MakePictures();
    Animation Result() const;

  private:
    bool HasCanvas() const { return before_->width > 0 && before_->height > 0; }
    size_t JobOf(const Frame& frame, const PictureVariant& variant);
    EditedPicture Make(const Job& job) const;
    bool Take(const Job& job, std::optional<EditedPicture> made);
    // False when memory is short.
    bool Share(const Picture& other, EditedPicture& made) const;
    Frame Changed(const PlannedFrame& planned) const;

    AnimationDocument& document_;
    const PictureEdit& edit_;
    const std::shared_ptr<const Animation> before_;
    std::vector<PlannedFrame> planned_;
    std::vector<Job> jobs_;
    std::map<std::pair<const Picture*, PictureVariant>, size_t> job_of_;
    std::vector<EditedPicture> made_;  // of the jobs, as far as it has come
};

void PictureRun::Plan(const FrameSet& frames) {
    if (!HasCanvas()) return;
    for (const int32 position : frames.Positions()) {
        const FramePointer frame = before_->frames.At(position);
        if (!frame->bitmap || !frame->bitmap->HasRows()) continue;
        PlannedFrame planned{position, edit_.PlanOf(*before_, position), 0};
        if (!planned.plan.keeps_picture) planned.job = JobOf(*frame, planned.plan.variant);
        planned_.push_back(planned);
    }
}

size_t PictureRun::JobOf(const Frame& frame, const PictureVariant& variant) {
    const auto [known, is_new] =
        job_of_.try_emplace(std::pair(frame.bitmap.get(), variant), jobs_.size());
    if (is_new) jobs_.push_back({frame.bitmap, variant, false});
    if (edit_.MakesColors() && frame.palette->mode == kPaletteOptimal)
        jobs_[known->second].wants_palette = true;
    return known->second;
}

EditedPicture PictureRun::Make(const Job& job) const {
    EditedPicture made;
    made.bitmap = edit_.Make(*job.picture, job.variant, document_.pixel_budget, document_.work);
    if (made.bitmap && job.wants_palette)
        made.palette_status = made.palette.SetOptimal(made.bitmap.get(), &document_.work);
    return made;
}

bool PictureRun::MakePictures() {
    const int32 count = static_cast<int32>(jobs_.size());
    int32 next = 0;
    OrderedSteps<int32, EditedPicture> steps;
    steps.next = [&] { return next < count ? std::optional(next++) : std::nullopt; };
    steps.begin = [&](int32 i) {
        if (document_.StopRequested()) return false;
        document_.PostStatus(CoreText::With(CoreText::tr(edit_.Status()),
                                            {std::to_string(i + 1), std::to_string(count)}));
        document_.work.Report(i, count);
        return true;
    };
    steps.work = [&](int32 i, int32) -> std::optional<EditedPicture> {
        EditedPicture made = Make(jobs_[static_cast<size_t>(i)]);
        if (!made.bitmap || made.palette_status == B_NO_MEMORY) return std::nullopt;
        return made;
    };
    steps.waiting = [&] { document_.work.ReportAgain(); };
    steps.take = [&](int32 i, std::optional<EditedPicture> made) {
        return Take(jobs_[static_cast<size_t>(i)], std::move(made));
    };
    RunInOrder(steps);
    return made_.size() == jobs_.size();
}

bool PictureRun::Take(const Job& job, std::optional<EditedPicture> made) {
    if (!made || document_.StopRequested()) return false;
    if (!Share(*job.picture, *made)) return false;
    // What is as it was is no change.
    if (made->bitmap->AllStrips() == job.picture->AllStrips()) made->bitmap = job.picture;
    if (!made_.empty() && !Share(*made_.back().bitmap, *made)) return false;
    made_.push_back(std::move(*made));
    return true;
}

bool PictureRun::Share(const Picture& other, EditedPicture& made) const {
    made.bitmap = ShareStrips(std::move(made.bitmap), other, document_.pixel_budget);
    return made.bitmap != nullptr;
}

Frame PictureRun::Changed(const PlannedFrame& planned) const {
    Frame frame = *before_->frames.At(planned.position);
    frame.x_offset = planned.plan.x_offset;
    frame.y_offset = planned.plan.y_offset;
    if (planned.plan.keeps_picture) return frame;
    const EditedPicture& made = made_[planned.job];
    if (frame.bitmap == made.bitmap) return frame;
    frame.bitmap = made.bitmap;
    // The file's bytes draw another picture.
    frame.source = nullptr;
    frame.width = made.bitmap->Width();
    frame.height = made.bitmap->Height();
    if (jobs_[planned.job].wants_palette && frame.palette->mode == kPaletteOptimal) {
        Palette palette = *frame.palette;
        palette.colors = made.palette.colors;
        palette.size = made.palette.size;
        palette.bits = made.palette.bits;
        palette.unique_colors = made.palette.unique_colors;
        frame.palette = std::make_shared<const Palette>(palette);
    }
    return frame;
}

Animation PictureRun::Result() const {
    Animation result = *before_;
    if (HasCanvas()) edit_.SetCanvas(result);
    for (const PlannedFrame& planned : planned_) {
        Frame frame = Changed(planned);
        if (frame == *before_->frames.At(planned.position)) continue;
        result.frames.Replace(planned.position, std::make_shared<const Frame>(std::move(frame)));
    }
    return result;
}

}  // namespace

EditEnd EditPictures(AnimationDocument& document, const PictureEdit& edit, const FrameSet& frames) {
    try {
        PictureRun run(document, edit);
        run.Plan(frames);
        if (run.MakePictures() && !document.StopRequested()) {
            Animation result = run.Result();
            if (!(result == *document.Current())) document.CommitModified(std::move(result));
            return EditEnd::kDone;
        }
    } catch (const std::bad_alloc&) {
        // As where a picture could not be made.
    }
    if (document.StopRequested()) return EditEnd::kStopped;
    WarnOutOfMemory();
    return EditEnd::kOutOfMemory;
}

}  // namespace kirto
