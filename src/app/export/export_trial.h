#pragma once

#include <memory>
#include <optional>
#include <string>

#include "animation/animation.h"
#include "app/export/fit_under.h"
#include "base/pixel_budget.h"
#include "document/animation_document.h"
#include "kit/translator_roster.h"
#include "settings/prefs.h"

namespace kirto {

// An export that is made to be looked at: its file, and what players show of that.
class ExportTrial {
  public:
    struct Task {
        std::shared_ptr<const Animation> animation;
        bool pause_in_seconds = false;
        std::shared_ptr<PixelBudget> budget;
        BTranslatorRoster& roster;  // outlives the trial
        ExportSettings settings;
        std::optional<uint64> limit;  // bytes that the files may have
        std::string name{};           // that the file is proposed to have
    };
    struct Outcome {
        ExportResult result = ExportResult::kStopped;
        FittedExport made;  // empty unless the result is kDone
        // Its pauses are in hundredths; null where it can't be shown.
        std::shared_ptr<const Animation> shown;
    };

    explicit ExportTrial(Task task);

    // To be called once, on any one thread.
    Outcome Run();
    // Ends Run early. Any thread.
    void Stop();

  private:
    std::shared_ptr<const Animation> Read(const FittedExport& made);
    void ReadFile(const std::vector<uint8>& bytes);
    void ReadVideo(const std::vector<uint8>& bytes);

    const Task task_;
    Work work_;
    Prefs prefs_;
    AnimationDocument read_;  // what is in the file
};

}  // namespace kirto
