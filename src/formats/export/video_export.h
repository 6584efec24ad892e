// Videos, which the program ffmpeg makes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "animation/animation.h"
#include "base/types.h"
#include "base/work.h"
#include "formats/export/export_settings.h"
#include "kit/foreign_process.h"

namespace kirto {

enum class VideoResult {
    kDone,
    kTooLong,  // it would have more pictures than kMostPictures
    kFailed,   // the program has not made a file
    kStopped
};

inline constexpr int64 kMostPictures = 1000000;

// Limits for a program that writes a file and may think for a while.
ForeignProcess::Limits VideoWriterLimits();

// The animation as an MP4 or WebM file at a constant rate, which keeps its pauses; see TimingOf().
// Sides become even by a row or a column of black. The animation has a frame and a canvas with a
// pixel. program: the file of ffmpeg. in_seconds: the unit of the animation's pauses, else
// hundredths. work: hears how far it is. Throws std::bad_alloc.
VideoResult EncodeVideo(const Animation& animation, bool in_seconds, const ExportSettings& settings,
                        const std::string& program, const ForeignProcess::Limits& limits,
                        Work& work, std::vector<uint8>* bytes);

}  // namespace kirto
