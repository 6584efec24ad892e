#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "app/export/export_animation.h"
#include "app/export/export_files.h"
#include "base/types.h"
#include "formats/export/export_settings.h"

namespace kirto {

// An export that is no larger than it may be.
struct FittedExport {
    ExportSettings settings;  // that it was made with
    ExportFiles files{};      // empty unless it was made
    uint64 smallest = 0;      // bytes of the smallest that was tried, all files together
};

// What exports: ExportWithin(), or nothing in a program that does not.
using Exporter =
    std::function<ExportResult(const std::optional<uint64>& limit, const ExportTask& task,
                               const ExportSettings& settings, FittedExport* exported)>;

// Exports with the settings, or as near to them as the size allows: of colors, loss, quality, scale
// and frames, in this order, as little is given up as is found to do. The same for the same values.
// limit: bytes. kTooManyBytes where nothing that is tried is so small.
ExportResult FitUnder(uint64 limit, const ExportTask& task, const ExportSettings& settings,
                      FittedExport* fitted);

// Exports within the limit, or, without one, with the settings as they are.
ExportResult ExportWithin(const std::optional<uint64>& limit, const ExportTask& task,
                          const ExportSettings& settings, FittedExport* exported);

// The steps from the settings on, each giving up more than the one before; the first is the
// settings themselves.
std::vector<ExportSettings> StepsToSmaller(const ExportSettings& settings);

}  // namespace kirto
