#include "formats/video/video_reader.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <limits>
#include <utility>

#include "formats/video/video_probe.h"

namespace kirto {

namespace {

constexpr size_t kMostProbeBytes = size_t{1} << 16;

// What both programs may read: that file, as one of these kinds. Lists of other files are none.
const std::vector<std::string> kOnlyThisFile = {
    "-v", "error", "-protocol_whitelist", "file", "-format_whitelist", "mov,matroska,avi"};

}  // namespace

std::optional<VideoPrograms> FindVideoPrograms() {
    const auto probe = FindProgram("ffprobe");
    const auto decode = FindProgram("ffmpeg");
    if (!probe || !decode) return std::nullopt;
    return VideoPrograms{*probe, *decode};
}

VideoReader::VideoReader(VideoPrograms programs, std::string path, uint64 pixel_bytes,
                         const ForeignProcess::Limits& limits, std::function<bool()> stopped)
    : programs_(std::move(programs)),
      path_(std::move(path)),
      pixel_bytes_(pixel_bytes),
      limits_(limits),
      stopped_(std::move(stopped)) {}

AnimatedImageReader::Result VideoReader::ReadHeader(AnimatedImageHeader* header) {
    const Result result = Probe();
    if (result != Result::kFrame) return result;
    *header = header_;
    return StartDecoding() ? Result::kFrame : Result::kBroken;
}

AnimatedImageReader::Result VideoReader::Next() {
    size_t count = 0;
    const auto read = decoder_->Read(frame_, &count);
    if (read == ForeignProcess::Result::kDone) {
        ++drawn_;
        return Result::kFrame;
    }
    if (read != ForeignProcess::Result::kEnd) return Result::kBroken;
    const bool whole = count == 0 && drawn_ > 0 && decoder_->Finish() == 0;
    // The program ends well where the file is cut short, but says so.
    return whole && decoder_->ErrorText().empty() ? Result::kEnd : Result::kBroken;
}

const uint8* VideoReader::Row(int32 y) const {
    return frame_.data() + size_t{4} * static_cast<size_t>(header_.width) * static_cast<size_t>(y);
}

double VideoReader::Milliseconds() const {
    const auto hundredths = [this](int32 frames) {
        return std::round(100.0 * frames * static_cast<double>(rate_denominator_) /
                          static_cast<double>(rate_numerator_));
    };
    return 10.0 * (hundredths(drawn_) - hundredths(drawn_ - 1));
}

AnimatedImageReader::Result VideoReader::Probe() {
    std::vector<std::string> arguments = kOnlyThisFile;
    arguments.insert(arguments.end(),
                     {"-of", "json", "-select_streams", "v:0", "-show_entries",
                      "stream=width,height,avg_frame_rate,r_frame_rate:stream_side_data=rotation:"
                      "format=duration",
                      "-i", Input()});
    ForeignProcess process(limits_, stopped_);
    if (!process.Start(programs_.probe, arguments)) return Result::kBroken;
    std::string text(kMostProbeBytes, '\0');
    size_t count = 0;
    const auto read = process.Read({reinterpret_cast<uint8*>(text.data()), text.size()}, &count);
    if (read != ForeignProcess::Result::kEnd || process.Finish() != 0) return Result::kBroken;
    const auto video = ParseVideoProbe(std::string_view(text).substr(0, count));
    if (!video) return Result::kBroken;
    const uint64 bytes = static_cast<uint64>(video->width * video->height) * 4;
    if (bytes > pixel_bytes_) return Result::kNoMemory;
    header_.width = static_cast<int32>(video->width);
    header_.height = static_cast<int32>(video->height);
    rate_numerator_ = video->rate_numerator;
    rate_denominator_ = video->rate_denominator;
    if (rate_numerator_ > kMostFramesPerSecond * rate_denominator_) {
        rate_numerator_ = kMostFramesPerSecond;
        rate_denominator_ = 1;
    }
    const double frames = std::round(video->seconds * static_cast<double>(rate_numerator_) /
                                     static_cast<double>(rate_denominator_));
    header_.frame_count =
        static_cast<int32>(std::min<double>(frames, std::numeric_limits<int32>::max()));
    return Result::kFrame;
}

bool VideoReader::StartDecoding() {
    const std::string rate =
        std::to_string(rate_numerator_) + "/" + std::to_string(rate_denominator_);
    const std::string size = std::to_string(header_.width) + ":" + std::to_string(header_.height);
    std::vector<std::string> arguments = kOnlyThisFile;
    arguments.insert(arguments.begin(), "-nostdin");
    arguments.insert(arguments.end(),
                     {"-i", Input(), "-map", "0:v:0", "-vf", "fps=" + rate + ",scale=" + size, "-f",
                      "rawvideo", "-pix_fmt", "bgra", "pipe:1"});
    frame_.resize(size_t{4} * static_cast<size_t>(header_.width) *
                  static_cast<size_t>(header_.height));
    decoder_ = std::make_unique<ForeignProcess>(limits_, stopped_);
    return decoder_->Start(programs_.decode, arguments);
}

// Names that look like options or addresses are files as well.
std::string VideoReader::Input() const {
    std::error_code error;
    return "file:" + std::filesystem::absolute(path_, error).string();
}

}  // namespace kirto
