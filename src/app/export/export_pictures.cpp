#include "app/export/export_pictures.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "app/export/image_encoder.h"
#include "app/export/sheet_drawing.h"
#include "base/run_in_order.h"

namespace kirto {

namespace {

constexpr size_t kAlphaOfPixel = 3;

// An image, or why there is none.
struct EncodedImage {
    ExportResult result = ExportResult::kDone;
    std::vector<uint8> bytes;
};

// What is transparent gets no color.
CanvasPixels CanvasPixelsOf(const BBitmap& picture) {
    CanvasPixels canvas(picture.Bits(), picture.Bits() + picture.BitsLength());
    for (size_t i = 0; i < canvas.size(); i += 4) {
        if (canvas[i + kAlphaOfPixel] == 0)
            std::fill_n(canvas.begin() + static_cast<ptrdiff_t>(i), 4, 0);
    }
    return canvas;
}

}  // namespace

ExportResult ExportSheet(const ExportTask& task, const ExportSettings& settings,
                         const Animation& animation, ExportFiles* files) {
    const ImageEncoder encoder(task.roster, task.budget, settings.image, task.work);
    if (!encoder.Knows()) return ExportResult::kNoWriter;
    const SheetDrawing drawing(std::make_shared<const Animation>(animation), task.pause_in_seconds,
                               FrameSet::AllOf(animation.frames.Size()),
                               {settings.columns, settings.padding, false});
    if (drawing.IsEmpty()) return ExportResult::kNoFrames;
    if (drawing.IsTooLarge()) return ExportResult::kTooLarge;
    std::shared_ptr<const BBitmap> picture = drawing.Draw(task.budget, task.work);
    if (!picture)
        return task.work.StopRequested() ? ExportResult::kStopped : ExportResult::kNoMemory;
    const CanvasPixels canvas = CanvasPixelsOf(*picture);
    picture.reset();
    const SheetDescription& sheet = drawing.Description();
    files->sheet = sheet;
    return encoder.Encode(canvas, sheet.width, sheet.height, &files->contents.emplace_back());
}

ExportResult ExportImages(const ExportTask& task, const ExportSettings& settings,
                          const Animation& animation, ExportFiles* files) {
    const ImageEncoder encoder(task.roster, task.budget, settings.image, task.work);
    if (!encoder.Knows()) return ExportResult::kNoWriter;
    files->numbered = true;
    const int32 count = animation.frames.Size();
    ExportResult result = ExportResult::kDone;
    int32 next = 0;
    OrderedSteps<int32, EncodedImage> steps;
    steps.next = [&] { return next < count ? std::optional(next++) : std::nullopt; };
    steps.begin = [&](int32 frame) {
        task.work.Report(frame, count);
        return !task.work.StopRequested();
    };
    steps.work = [&](int32 frame, int32) {
        EncodedImage image;
        image.result = encoder.Encode(CanvasOf(animation, *animation.frames.At(frame)),
                                      animation.width, animation.height, &image.bytes);
        return std::optional(std::move(image));
    };
    steps.waiting = [&] { task.work.ReportAgain(); };
    steps.take = [&](int32, std::optional<EncodedImage> image) {
        result = image ? image->result : ExportResult::kNoMemory;
        if (result == ExportResult::kDone) files->contents.push_back(std::move(image->bytes));
        return result == ExportResult::kDone;
    };
    RunInOrder(steps);
    return task.work.StopRequested() ? ExportResult::kStopped : result;
}

}  // namespace kirto
