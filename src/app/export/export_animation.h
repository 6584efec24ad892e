#pragma once

#include <memory>
#include <string>

#include "animation/animation.h"
#include "app/export/export_files.h"
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
    BTranslatorRoster& roster;            // writes WebP and images
    Work& work;                           // hears how far it is, and may stop it
    std::string name{};                   // of the file, which a text beside it tells
};

// The animation as files by the settings: the same bytes for the same values, whatever the number
// of threads. files: empty unless kDone. Takes as long as it takes; on any thread.
ExportResult ExportAnimation(const ExportTask& task, const ExportSettings& settings,
                             ExportFiles* files);

}  // namespace kirto
