#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/export/export_result.h"
#include "base/pixel_budget.h"
#include "base/types.h"
#include "base/work.h"
#include "formats/export/export_canvas.h"
#include "kit/translator_roster.h"

namespace kirto {

// A kind of image files.
struct ImageKind {
    std::string extension;  // without dot, lower case
    std::string name;       // "PNG image"
};

// Those that can be written here: PNG, and then what the roster writes, in its order.
std::vector<ImageKind> ImageKindsOf(const BTranslatorRoster& roster);

// Makes image files of canvases: PNG as small as it gets, other kinds by a translator with its
// default settings. Constant; any thread.
class ImageEncoder {
  public:
    // What is referred to outlives this. extension: of an ImageKind; another one can't be written.
    ImageEncoder(BTranslatorRoster& roster, std::shared_ptr<PixelBudget> budget,
                 const std::string& extension, const Work& work);

    bool Knows() const { return is_png_ || format_ != 0; }
    // width, height: of the canvas, above 0. kDone, kNoMemory, kFailed, or kStopped with the work.
    ExportResult Encode(const CanvasPixels& canvas, int32 width, int32 height,
                        std::vector<uint8>* bytes) const;

  private:
    ExportResult Translate(const CanvasPixels& canvas, int32 width, int32 height,
                           std::vector<uint8>* bytes) const;

    BTranslatorRoster& roster_;
    const std::shared_ptr<PixelBudget> budget_;
    const Work& work_;
    const bool is_png_;
    translator_id translator_ = 0;
    uint32 format_ = 0;  // that it writes; 0: none
};

}  // namespace kirto
