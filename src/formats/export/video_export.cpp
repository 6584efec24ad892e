#include "formats/export/video_export.h"

#include <algorithm>
#include <cmath>
#include <sys/mman.h>
#include <unistd.h>

#include "base/debug_line.h"
#include "base/file_descriptor.h"
#include "base/text.h"
#include "color/adaptive/alpha_matte.h"
#include "formats/export/export_canvas.h"
#include "formats/export/video_timing.h"

namespace kirto {

namespace {

constexpr int32 kGoodQuality = 75;
// Standard output by a name that can be written at any place, which a pipe could not.
constexpr const char* kOutputFile = "file:/proc/self/fd/1";
constexpr uint64 kMostBytes = uint64{2} << 30;

// What the encoders call it, from the best to the worst.
int32 RateFactor(double best, double worst, const ExportSettings& settings) {
    const double quality = settings.quality.value_or(kGoodQuality) / 100.0;
    return static_cast<int32>(std::lround(worst + (best - worst) * quality));
}

// The number of threads is always the same, since the files depend on it.
std::vector<std::string> EncoderOf(const ExportSettings& settings) {
    if (settings.format == ExportFormat::kMp4) {
        return {"-c:v",    "libx264", "-crf",      std::to_string(RateFactor(10, 51, settings)),
                "-preset", "slow",    "-threads",  "4",
                "-f",      "mp4",     "-movflags", "+faststart"};
    }
    return {"-c:v",      "libvpx-vp9", "-crf",      std::to_string(RateFactor(12, 63, settings)),
            "-b:v",      "0",          "-deadline", "good",
            "-cpu-used", "2",          "-row-mt",   "1",
            "-threads",  "4",          "-f",        "webm"};
}

std::vector<std::string> ArgumentsFor(const Animation& animation, int64 step,
                                      const ExportSettings& settings) {
    std::vector<std::string> arguments = {
        // Without it a file that could not be written to its end counts as a success.
        "-xerror",
        "-v",
        "error",
        "-f",
        "rawvideo",
        "-pix_fmt",
        "bgra",
        "-s",
        Format("%dx%d", animation.width, animation.height),
        "-framerate",
        "1000/" + std::to_string(step),
        "-i",
        "pipe:0",
        "-an",
        "-vf",
        "pad=ceil(iw/2)*2:ceil(ih/2)*2,scale=out_color_matrix=bt709",
        "-pix_fmt",
        "yuv420p",
        "-colorspace",
        "bt709",
        "-color_primaries",
        "bt709",
        "-color_trc",
        "bt709",
        "-map_metadata",
        "-1",
        "-fflags",
        "+bitexact",
        "-flags:v",
        "+bitexact"};
    const std::vector<std::string> encoder = EncoderOf(settings);
    arguments.insert(arguments.end(), encoder.begin(), encoder.end());
    arguments.insert(arguments.end(), {"-y", kOutputFile});
    return arguments;
}

// Soft edges are laid on the matte, and so is what is not there.
void LayOn(rgb_color matte, CanvasPixels* canvas) {
    const AlphaMatte below(matte, false);
    for (size_t i = 0; i < canvas->size(); i += 4) {
        uint8* const pixel = canvas->data() + i;
        const uint32 key = below.KeyAt<false>(pixel);
        const ColorComponents color = ComponentsOf(key);
        for (size_t j = 0; j < 3; ++j)
            pixel[j] = static_cast<uint8>(color[2 - j]);
        pixel[3] = 255;
    }
}

// What the program has written into a file without a name.
bool ReadAll(int file, std::vector<uint8>* bytes) {
    const off_t size = lseek(file, 0, SEEK_END);
    if (size <= 0) return false;
    bytes->resize(static_cast<size_t>(size));
    size_t read = 0;
    while (read < bytes->size()) {
        const ssize_t count =
            pread(file, bytes->data() + read, bytes->size() - read, static_cast<off_t>(read));
        if (count <= 0) return false;
        read += static_cast<size_t>(count);
    }
    return true;
}

VideoResult Failed(const ForeignProcess& process, const Work& work) {
    if (work.StopRequested()) return VideoResult::kStopped;
    DebugLine("EncodeVideo() - The program says: %s\n", process.ErrorText().c_str());
    return VideoResult::kFailed;
}

}  // namespace

ForeignProcess::Limits VideoWriterLimits() {
    ForeignProcess::Limits limits;
    limits.file_size = kMostBytes;
    limits.silence = std::chrono::minutes(2);
    return limits;
}

VideoResult EncodeVideo(const Animation& animation, bool in_seconds, const ExportSettings& settings,
                        const std::string& program, const ForeignProcess::Limits& limits,
                        Work& work, std::vector<uint8>* bytes) {
    const VideoTiming timing = TimingOf(SpreadMilliseconds(animation, in_seconds));
    if (timing.pictures > kMostPictures) return VideoResult::kTooLong;
    const FileDescriptor file(memfd_create("video", MFD_CLOEXEC));
    if (!file) return VideoResult::kFailed;
    ForeignProcess process(limits, [&work] { return work.StopRequested(); });
    process.SendOutputTo(file.Get());
    if (!process.Start(program, ArgumentsFor(animation, timing.step, settings), true))
        return Failed(process, work);
    const int32 count = animation.frames.Size();
    for (int32 i = 0; i < count; ++i) {
        work.Report(i, count);
        CanvasPixels canvas = CanvasOf(animation, *animation.frames.At(i));
        LayOn(settings.matte, &canvas);
        for (int32 times = timing.repeats[static_cast<size_t>(i)]; times > 0; --times) {
            if (process.Write(canvas) != ForeignProcess::Result::kDone)
                return Failed(process, work);
        }
    }
    const bool made = process.Finish() == 0 && ReadAll(file.Get(), bytes);
    return made && !work.StopRequested() ? VideoResult::kDone : Failed(process, work);
}

}  // namespace kirto
