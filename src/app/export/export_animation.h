#pragma once

#include <memory>
#include <vector>

#include "animation/animation.h"
#include "app/export/export_result.h"
#include "base/pixel_budget.h"
#include "base/types.h"
#include "base/work.h"
#include "formats/export/export_settings.h"
#include "kit/translator_roster.h"

namespace kirto {

// What is exported, and what for. What is referred to outlives the export.
struct ExportTask {
    std::shared_ptr<const Animation> animation;
    bool pause_in_seconds = false;        // the unit of its pauses; else hundredths
    std::shared_ptr<PixelBudget> budget;  // counts pictures that are made
    const BTranslatorRoster& roster;      // writes WebP
    Work& work;                           // hears how far it is, and may stop it
};

// The animation as a file by the settings: the same bytes for the same values, whatever the number
// of threads. bytes: the whole file; empty unless kDone. Takes as long as it takes; on any thread.
ExportResult ExportAnimation(const ExportTask& task, const ExportSettings& settings,
                             std::vector<uint8>* bytes);

}  // namespace kirto
