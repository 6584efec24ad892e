#include "app/export/export_animation.h"

#include <algorithm>
#include <new>
#include <optional>
#include <utility>

#include "app/export/export_frames.h"
#include "app/export/export_pictures.h"
#include "formats/export/apng_export.h"
#include "formats/export/export_canvas.h"
#include "formats/export/video_export.h"
#include "formats/faithful/faithful_gif_save.h"
#include "formats/faithful/pixel_tolerance.h"
#include "formats/faithful/still_pixels.h"

namespace kirto {

namespace {

constexpr int32 kMostPixelsOfAGif = 65535;
constexpr int32 kMostPixelsOfAWebp = 16383;

int32 MostPixelsOfASide(ExportFormat format) {
    return format == ExportFormat::kWebp ? kMostPixelsOfAWebp : kMostPixelsOfAGif;
}

// What is not complete was stopped, or there was no memory for it.
ExportResult Interrupted(const ExportTask& task) {
    return task.work.StopRequested() ? ExportResult::kStopped : ExportResult::kNoMemory;
}

// The bytes of frames that were read are written again only where all is to be as it was.
bool KeepsBytes(const ExportSettings& settings) {
    return settings.colors == ExportSettings().colors && !settings.one_table && settings.loss == 0;
}

void ForgetSources(Animation& animation) {
    for (int32 i = 0; i < animation.frames.Size(); ++i) {
        if (!animation.frames.At(i)->source) continue;
        EditFrame(animation, i, [](Frame& frame) { frame.source = nullptr; });
    }
}

ExportResult WriteGif(const ExportTask& task, const ExportSettings& settings, Animation animation,
                      std::vector<uint8>* bytes) {
    if (!KeepsBytes(settings)) ForgetSources(animation);
    FaithfulOptions options;
    options.pause_in_seconds = task.pause_in_seconds;
    options.dither = settings.dither;
    options.dither_strength = settings.strength;
    options.matte = settings.matte;
    options.one_table = settings.one_table;
    options.most_colors = settings.colors;
    options.areas = settings.areas;
    options.tolerance = ToleranceOf(settings.loss);
    if (options.tolerance > 0 && options.areas == FrameAreas::kChanged) {
        auto still =
            WithStillPixels(animation, options.Matte(), options.tolerance, task.budget, task.work);
        if (!still) return Interrupted(task);
        animation = std::move(*still);
    }
    const std::shared_ptr<BFile> file = BFile::OnMemory();
    FaithfulGifSave(file, FaithfulGifTask{std::make_shared<const Animation>(std::move(animation)),
                                          options,
                                          task.budget->Limit(),
                                          task.work,
                                          {}});
    if (task.work.StopRequested()) return ExportResult::kStopped;
    if (file->WriteStatus() != B_OK) return ExportResult::kNoMemory;
    *bytes = file->Memory();
    return ExportResult::kDone;
}

ExportResult WriteWebp(const ExportTask& task, const ExportSettings& settings,
                       const Animation& animation, std::vector<uint8>* bytes) {
    const int32 count = animation.frames.Size();
    const AnimatedImageHeader header{animation.width, animation.height, count, PlaysOf(animation)};
    const auto writer = task.roster.WriteAnimatedImage(
        AnimatedImageFormat::kWebp, header,
        {settings.quality, [&task] { return task.work.StopRequested(); }});
    if (!writer) return ExportResult::kNoWriter;
    const std::vector<int32> pauses = SpreadMilliseconds(animation, task.pause_in_seconds);
    for (int32 i = 0; i < count; ++i) {
        task.work.Report(i, count);
        if (task.work.StopRequested()) return ExportResult::kStopped;
        const CanvasPixels canvas = CanvasOf(animation, *animation.frames.At(i));
        if (writer->Add(canvas, pauses[static_cast<size_t>(i)])) continue;
        return Interrupted(task);
    }
    *bytes = writer->Finish();
    return bytes->empty() ? ExportResult::kNoMemory : ExportResult::kDone;
}

ExportResult WriteApng(const ExportTask& task, const ExportSettings& settings,
                       const Animation& animation, std::vector<uint8>* bytes) {
    *bytes = EncodeApng(animation, task.pause_in_seconds, settings.areas, task.work);
    return bytes->empty() ? ExportResult::kStopped : ExportResult::kDone;
}

ExportResult WriteVideo(const ExportTask& task, const ExportSettings& settings,
                        const Animation& animation, std::vector<uint8>* bytes) {
    const auto program = FindProgram("ffmpeg");
    if (!program) return ExportResult::kNoWriter;
    switch (EncodeVideo(animation, task.pause_in_seconds, settings, *program, VideoWriterLimits(),
                        task.work, bytes)) {
        case VideoResult::kDone:
            return ExportResult::kDone;
        case VideoResult::kTooLong:
            return ExportResult::kTooLarge;
        case VideoResult::kFailed:
            return ExportResult::kFailed;
        case VideoResult::kStopped:
            break;
    }
    return ExportResult::kStopped;
}

ExportResult WriteFile(const ExportTask& task, const ExportSettings& settings,
                       const Animation& animation, std::vector<uint8>* bytes) {
    switch (settings.format) {
        case ExportFormat::kGif:
            return WriteGif(task, settings, animation, bytes);
        case ExportFormat::kWebp:
            return WriteWebp(task, settings, animation, bytes);
        case ExportFormat::kApng:
            return WriteApng(task, settings, animation, bytes);
        case ExportFormat::kMp4:
        case ExportFormat::kWebm:
            return WriteVideo(task, settings, animation, bytes);
        case ExportFormat::kSheet:
        case ExportFormat::kImages:
            break;
    }
    return ExportResult::kNoWriter;
}

ExportResult Write(const ExportTask& task, const ExportSettings& settings,
                   const Animation& animation, ExportFiles* files) {
    if (settings.format == ExportFormat::kSheet)
        return ExportSheet(task, settings, animation, files);
    if (settings.format == ExportFormat::kImages)
        return ExportImages(task, settings, animation, files);
    return WriteFile(task, settings, animation, &files->contents.emplace_back());
}

ExportResult Prepare(const ExportTask& task, const ExportSettings& settings,
                     std::optional<Animation>* animation) {
    *animation = EveryNthFrame(*task.animation, settings.every);
    if ((*animation)->frames.Empty() || std::min((*animation)->width, (*animation)->height) < 1)
        return ExportResult::kNoFrames;
    const int64 longest = std::max((*animation)->width, (*animation)->height);
    if (longest * settings.scale / 100 > MostPixelsOfASide(settings.format))
        return ExportResult::kTooLarge;
    const uint64 pixels =
        static_cast<uint64>((*animation)->width) * static_cast<uint64>((*animation)->height);
    const auto percent = static_cast<uint64>(settings.scale);
    if (pixels * percent / 100 * percent / 100 > task.budget->Limit() / sizeof(uint32))
        return ExportResult::kNoMemory;
    *animation = Scaled(**animation, settings.scale, task.budget, task.work);
    return *animation ? ExportResult::kDone : Interrupted(task);
}

}  // namespace

ExportResult ExportAnimation(const ExportTask& task, const ExportSettings& settings,
                             ExportFiles* files) {
    *files = {};
    try {
        std::optional<Animation> animation;
        ExportResult result = Prepare(task, settings, &animation);
        if (result == ExportResult::kDone) result = Write(task, settings, *animation, files);
        if (result != ExportResult::kDone) *files = {};
        return result;
    } catch (const std::bad_alloc&) {
        *files = {};
        return ExportResult::kNoMemory;
    }
}

}  // namespace kirto
