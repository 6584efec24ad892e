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
            return std::string("The animation is too large for a ") + NameOf(format) + " file.";
        case ExportResult::kNoWriter:
            if (format == ExportFormat::kMp4 || format == ExportFormat::kWebm)
                return kNoVideoWriterText;
            return std::string("There is nothing here that writes ") + NameOf(format) + " files.";
        case ExportResult::kNoMemory:
            return "Out of memory.";
        case ExportResult::kFailed:
            return "The program that writes videos has failed.";
        case ExportResult::kTooManyBytes:
            return "The animation can't be made so small.";
        case ExportResult::kStopped:
            return "Stopped.";
    }
    return {};
}

}  // namespace kirto
