// Exports of several pictures: sheets with a text, and numbered images.
#pragma once

#include "app/export/export_animation.h"
#include "app/export/export_files.h"

namespace kirto {

// All frames side by side in one picture, as SheetDrawing does it, and what is where. animation:
// what is left of the task's, with a frame and a canvas.
ExportResult ExportSheet(const ExportTask& task, const ExportSettings& settings,
                         const Animation& animation, ExportFiles* files);

// An image of the canvas with each frame, several of which are encoded at a time. As above.
ExportResult ExportImages(const ExportTask& task, const ExportSettings& settings,
                          const Animation& animation, ExportFiles* files);

}  // namespace kirto
