#include "app/export/fit_under.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace kirto {

namespace {

constexpr int32 kFewerColors[] = {192, 128, 96, 64};
constexpr int32 kMoreLoss[] = {10, 20, 40, 70, 100};
constexpr int32 kLessQuality[] = {95, 85, 75, 60, 45, 30, 20};
// Percent of the scale that is wanted.
constexpr int32 kSmaller[] = {90, 80, 70, 60, 50};
constexpr int32 kLongerSteps[] = {2, 3, 4};
// Where nothing else has helped.
constexpr int32 kSmallest[] = {40, 30, 20, 10};
// Exports between a step that is too large and the next one.
constexpr int kRefinements = 3;

bool HasQuality(ExportFormat format) {
    return format == ExportFormat::kWebp || format == ExportFormat::kMp4 ||
           format == ExportFormat::kWebm;
}

void AddColors(std::vector<ExportSettings>* steps) {
    for (const int32 colors : kFewerColors) {
        if (colors >= steps->back().colors) continue;
        steps->push_back(steps->back());
        steps->back().colors = colors;
    }
    for (const int32 loss : kMoreLoss) {
        if (loss <= steps->back().loss) continue;
        steps->push_back(steps->back());
        steps->back().loss = loss;
    }
}

void AddQuality(std::vector<ExportSettings>* steps) {
    for (const int32 quality : kLessQuality) {
        if (steps->back().quality && quality >= *steps->back().quality) continue;
        steps->push_back(steps->back());
        steps->back().quality = quality;
    }
}

void AddScale(int32 wanted, int32 percent, std::vector<ExportSettings>* steps) {
    const int32 scale = std::max(wanted * percent / 100, 1);
    if (scale >= steps->back().scale) return;
    steps->push_back(steps->back());
    steps->back().scale = scale;
}

// Halfway between both, or nothing where there is nothing between.
std::optional<ExportSettings> Between(const ExportSettings& larger, const ExportSettings& smaller) {
    ExportSettings middle = larger;
    middle.colors = (larger.colors + smaller.colors) / 2;
    middle.loss = (larger.loss + smaller.loss) / 2;
    middle.scale = (larger.scale + smaller.scale) / 2;
    middle.every = (larger.every + smaller.every) / 2;
    if (larger.quality && smaller.quality)
        middle.quality = (*larger.quality + *smaller.quality) / 2;
    if (middle == larger || middle == smaller) return std::nullopt;
    return middle;
}

// Tries settings and keeps what fits.
class FittingRun {
  public:
    FittingRun(uint64 limit, const ExportTask& task, FittedExport* fitted)
        : limit_(limit), task_(task), fitted_(fitted) {}

    // False where the export is too large, or has failed.
    bool Fits(const ExportSettings& settings) {
        ExportFiles files;
        result_ = ExportAnimation(task_, settings, &files);
        if (result_ != ExportResult::kDone) return false;
        const uint64 size = files.Size(task_.name);
        fitted_->smallest = fitted_->smallest == 0 ? size : std::min(fitted_->smallest, size);
        if (size > limit_) return false;
        fitted_->settings = settings;
        fitted_->files = std::move(files);
        return true;
    }
    // Of the last export.
    ExportResult Result() const { return result_; }
    bool HasFailed() const { return result_ != ExportResult::kDone; }

  private:
    const uint64 limit_;
    const ExportTask& task_;
    FittedExport* const fitted_;
    ExportResult result_ = ExportResult::kDone;
};

// The first of the steps that fits, since each is smaller than the one before.
ExportResult FindStep(const std::vector<ExportSettings>& steps, FittingRun& run) {
    if (run.Fits(steps.front()) || run.HasFailed()) return run.Result();
    if (steps.size() == 1 || !run.Fits(steps.back()))
        return run.HasFailed() ? run.Result() : ExportResult::kTooManyBytes;
    size_t large = 0;
    size_t small = steps.size() - 1;
    while (small - large > 1) {
        const size_t middle = (large + small) / 2;
        (run.Fits(steps[middle]) ? small : large) = middle;
        if (run.HasFailed()) return run.Result();
    }
    ExportSettings larger = steps[large];
    ExportSettings smaller = steps[small];
    for (int i = 0; i < kRefinements; ++i) {
        const std::optional<ExportSettings> middle = Between(larger, smaller);
        if (!middle) break;
        (run.Fits(*middle) ? smaller : larger) = *middle;
        if (run.HasFailed()) break;
    }
    return run.Result();
}

}  // namespace

std::vector<ExportSettings> StepsToSmaller(const ExportSettings& settings) {
    std::vector<ExportSettings> steps = {settings};
    if (settings.format == ExportFormat::kGif) AddColors(&steps);
    if (HasQuality(settings.format)) AddQuality(&steps);
    for (const int32 percent : kSmaller)
        AddScale(settings.scale, percent, &steps);
    for (const int32 longer : kLongerSteps) {
        if (settings.every * longer > kMostFramesAStep) break;
        steps.push_back(steps.back());
        steps.back().every = settings.every * longer;
    }
    for (const int32 percent : kSmallest)
        AddScale(settings.scale, percent, &steps);
    return steps;
}

ExportResult FitUnder(uint64 limit, const ExportTask& task, const ExportSettings& settings,
                      FittedExport* fitted) {
    *fitted = {settings, {}, 0};
    FittingRun run(limit, task, fitted);
    const ExportResult result = FindStep(StepsToSmaller(settings), run);
    if (result != ExportResult::kDone) fitted->files = {};
    return result;
}

ExportResult ExportWithin(const std::optional<uint64>& limit, const ExportTask& task,
                          const ExportSettings& settings, FittedExport* exported) {
    if (limit) return FitUnder(*limit, task, settings, exported);
    *exported = {settings, {}, 0};
    return ExportAnimation(task, settings, &exported->files);
}

}  // namespace kirto
