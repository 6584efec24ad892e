// What is in the pictures of an export.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "animation/animation.h"
#include "app/export/export_files.h"
#include "base/pixel_budget.h"
#include "kit/translator_roster.h"

namespace kirto {

// How the pictures are read. What is referred to outlives the reading.
struct PictureReading {
    BTranslatorRoster& roster;
    std::shared_ptr<PixelBudget> budget;  // of what is read
    std::function<bool()> stopped;        // asked every now and then
    std::vector<int32> milliseconds;      // how long each of numbered images is shown
};

// The animation that the sheet or the numbered images show, with pauses in hundredths. Null where
// the reading was stopped, memory is short or a picture can't be read; throws std::bad_alloc.
std::shared_ptr<const Animation> ReadPictures(const ExportFiles& files,
                                              const PictureReading& reading);

}  // namespace kirto
