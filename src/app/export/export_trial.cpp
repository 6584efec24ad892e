#include "app/export/export_trial.h"

#include <new>
#include <string>
#include <sys/mman.h>
#include <unistd.h>
#include <utility>

#include "app/export/export_frames.h"
#include "app/export/read_pictures.h"
#include "base/debug_line.h"
#include "base/file_descriptor.h"
#include "base/text.h"
#include "formats/export/export_canvas.h"
#include "formats/gif/gif_load.h"
#include "formats/images/animated_image_load.h"
#include "formats/video/video_reader.h"

namespace kirto {

namespace {

Prefs AsPlayersRead() {
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.animation_faithful = true;
    return prefs;
}

// A file in memory that other programs can open by a path, as long as it is open here.
FileDescriptor FileInMemory(const std::vector<uint8>& bytes) {
    FileDescriptor file(memfd_create("kirto-export", MFD_CLOEXEC));
    size_t written = 0;
    while (file && written < bytes.size()) {
        const ssize_t count = write(file.Get(), bytes.data() + written, bytes.size() - written);
        if (count <= 0) return {};
        written += static_cast<size_t>(count);
    }
    return file;
}

}  // namespace

ExportTrial::ExportTrial(Task task)
    : task_(std::move(task)), prefs_(AsPlayersRead()), read_(prefs_) {
    read_.pixel_budget->SetLimit(task_.budget->Limit());
}

void ExportTrial::Stop() {
    work_.StopAll();
    read_.RequestStop();
}

ExportTrial::Outcome ExportTrial::Run() {
    Outcome outcome;
    const ExportTask export_task = {
        task_.animation, task_.pause_in_seconds, task_.budget, task_.roster, work_, task_.name};
    if (task_.limit) {
        outcome.result = FitUnder(*task_.limit, export_task, task_.settings, &outcome.made);
    } else {
        outcome.made.settings = task_.settings;
        outcome.result = ExportAnimation(export_task, task_.settings, &outcome.made.files);
    }
    if (outcome.result != ExportResult::kDone) return outcome;
    try {
        outcome.shown = Read(outcome.made);
    } catch (const std::bad_alloc&) {
        // The files are there; their pictures are not.
    }
    return outcome;
}

std::shared_ptr<const Animation> ExportTrial::Read(const FittedExport& made) {
    if (HasPictures(made.settings.format)) {
        const Animation kept = EveryNthFrame(*task_.animation, made.settings.every);
        return ReadPictures(
            made.files, {task_.roster, read_.pixel_budget, [this] { return read_.StopRequested(); },
                         SpreadMilliseconds(kept, task_.pause_in_seconds)});
    }
    ReadFile(made.files.contents.front());
    return read_.FrameCount() > 0 ? read_.Current() : nullptr;
}

void ExportTrial::ReadFile(const std::vector<uint8>& bytes) {
    const DebugLineCapture lines;
    const auto file = BFile::OnMemory(bytes);
    switch (task_.settings.format) {
        case ExportFormat::kGif:
            GifLoad(file.get(), 0, read_);
            break;
        case ExportFormat::kWebp:
            AnimatedImageLoad(AnimatedImageFormat::kWebp, file.get(), 0, read_, task_.roster);
            break;
        case ExportFormat::kApng:
            AnimatedImageLoad(AnimatedImageFormat::kApng, file.get(), 0, read_, task_.roster);
            break;
        case ExportFormat::kMp4:
        case ExportFormat::kWebm:
            ReadVideo(bytes);
            break;
        case ExportFormat::kSheet:
        case ExportFormat::kImages:
            break;
    }
}

void ExportTrial::ReadVideo(const std::vector<uint8>& bytes) {
    const auto programs = FindVideoPrograms();
    const FileDescriptor file = FileInMemory(bytes);
    if (!programs || !file) return;
    const auto stopped = [this] { return read_.StopRequested(); };
    VideoReader::Job job{Format("/proc/%d/fd/%d", getpid(), file.Get())};
    const auto video = ProbeVideo(*programs, job.path, job.limits, stopped);
    const auto frames = video ? FramesOf(*video, {}) : std::nullopt;
    if (!frames) return;
    job.frames = *frames;
    job.pixel_bytes = read_.pixel_budget->Left();
    AnimatedImageLoad(std::make_unique<VideoReader>(programs->decode, job, stopped), 0, read_);
}

}  // namespace kirto
