#include "app/export/export_result.h"

namespace kirto {

namespace {

constexpr const char* kNoVideoWriterText =
    "The video can't be written because the program ffmpeg was not found. Install the package "
    "\"ffmpeg\".";

}  // namespace

std::string SentenceOf(ExportResult result, ExportFormat format) {
    switch (result) {
        case ExportResult::kDone:
            return {};
        case ExportResult::kNoFrames:
            return "There is no frame to export.";
        case ExportResult::kTooLarge:
            if (format == ExportFormat::kSheet) return "The sheet would be too large.";
            return std::string("The animation is too large for a ") + NameOf(format) + " file.";
        case ExportResult::kNoWriter:
            if (format == ExportFormat::kMp4 || format == ExportFormat::kWebm)
                return kNoVideoWriterText;
            if (HasPictures(format)) return "There is nothing here that writes this image format.";
            return std::string("There is nothing here that writes ") + NameOf(format) + " files.";
        case ExportResult::kNoMemory:
            return "Out of memory.";
        case ExportResult::kFailed:
            if (HasPictures(format)) return "The image can't be written in this format.";
            return "The program that writes videos has failed.";
        case ExportResult::kTooManyBytes:
            return "The animation can't be made so small.";
        case ExportResult::kStopped:
            return "Stopped.";
    }
    return {};
}

}  // namespace kirto
