#include "app/export/image_encoder.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "formats/export/png_file.h"
#include "kit/picture_files.h"

namespace kirto {

namespace {

constexpr const char* kPngExtension = "png";

// Of those that the translator writes, the one for files; null where there is none.
const translation_format* FormatOfFiles(const std::vector<translation_format>& formats) {
    const auto found = std::find_if(formats.begin(), formats.end(), [](const auto& format) {
        return format.type != B_TRANSLATOR_BITMAP && !format.extensions.empty();
    });
    return found == formats.end() ? nullptr : &*found;
}

bool HasText(const std::vector<std::string>& texts, const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

}  // namespace

std::vector<ImageKind> ImageKindsOf(const BTranslatorRoster& roster) {
    std::vector<ImageKind> kinds = {{kPngExtension, "PNG image"}};
    for (const translator_id id : roster.Translators()) {
        const auto formats = roster.OutputFormats(id);
        const translation_format* const format = FormatOfFiles(formats);
        if (!format || HasText(format->extensions, kPngExtension)) continue;
        kinds.push_back({format->extensions.front(), format->name});
    }
    return kinds;
}

ImageEncoder::ImageEncoder(BTranslatorRoster& roster, std::shared_ptr<PixelBudget> budget,
                           const std::string& extension, const Work& work)
    : roster_(roster),
      budget_(std::move(budget)),
      work_(work),
      is_png_(extension == kPngExtension) {
    for (const translator_id id : roster.Translators()) {
        const auto formats = roster.OutputFormats(id);
        const translation_format* const format = FormatOfFiles(formats);
        if (is_png_ || format_ != 0 || !format || !HasText(format->extensions, extension)) continue;
        translator_ = id;
        format_ = format->type;
    }
}

ExportResult ImageEncoder::Encode(const CanvasPixels& canvas, int32 width, int32 height,
                                  std::vector<uint8>* bytes) const {
    if (!is_png_) return Translate(canvas, width, height, bytes);
    *bytes = EncodePng(canvas, width, height, work_);
    return work_.StopRequested() ? ExportResult::kStopped : ExportResult::kDone;
}

ExportResult ImageEncoder::Translate(const CanvasPixels& canvas, int32 width, int32 height,
                                     std::vector<uint8>* bytes) const {
    const auto picture = std::make_shared<BBitmap>(BRect::OfSize(width, height), B_RGBA32, budget_);
    if (picture->InitCheck() != B_OK) return ExportResult::kNoMemory;
    const size_t row_bytes = static_cast<size_t>(width) * 4;
    for (int32 y = 0; y < height; ++y)
        std::memcpy(picture->Row(y), canvas.data() + static_cast<size_t>(y) * row_bytes, row_bytes);
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    const status_t status = WritePictureQuietly(picture, roster_, translator_, format_,
                                                roster_.DefaultSettings(translator_), file,
                                                [this] { return work_.StopRequested(); });
    if (status == B_CANCELED) return ExportResult::kStopped;
    if (file->WriteStatus() != B_OK || status == B_NO_MEMORY) return ExportResult::kNoMemory;
    if (status != B_OK) return ExportResult::kFailed;
    *bytes = file->Memory();
    return ExportResult::kDone;
}

}  // namespace kirto
