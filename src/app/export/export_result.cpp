#include "app/export/export_result.h"

#include "base/core_text.h"

namespace kirto {

namespace {

constexpr const char* kNoVideoWriterText = CoreText::Later(
    "The video can't be written because the program ffmpeg was not found. Install the package "
    "\"ffmpeg\".");

}  // namespace

std::string SentenceOf(ExportResult result, ExportFormat format) {
    switch (result) {
        case ExportResult::kDone:
            return {};
        case ExportResult::kNoFrames:
            return CoreText::tr("There is no frame to export.");
        case ExportResult::kTooLarge:
            return CoreText::With(CoreText::tr("The animation is too large for a %1 file."),
                                  {NameOf(format)});
        case ExportResult::kNoWriter:
            if (format == ExportFormat::kMp4 || format == ExportFormat::kWebm)
                return CoreText::tr(kNoVideoWriterText);
            return CoreText::With(CoreText::tr("There is nothing here that writes %1 files."),
                                  {NameOf(format)});
        case ExportResult::kNoMemory:
            return CoreText::tr("Out of memory.");
        case ExportResult::kFailed:
            return CoreText::tr("The program that writes videos has failed.");
        case ExportResult::kTooManyBytes:
            return CoreText::tr("The animation can't be made so small.");
        case ExportResult::kStopped:
            return CoreText::tr("Stopped.");
    }
    return {};
}

}  // namespace kirto
