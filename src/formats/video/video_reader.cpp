#include "formats/video/video_reader.h"

#include <cmath>
#include <utility>

#include "base/text.h"

namespace kirto {

namespace {

constexpr double kMicroseconds = 1e6;

std::string InMicroseconds(double seconds) {
    return Format("%lldus", static_cast<long long>(std::llround(seconds * kMicroseconds)));
}

}  // namespace

VideoReader::VideoReader(std::string decoder, Job job, std::function<bool()> stopped)
    : decoder_(std::move(decoder)), job_(std::move(job)), stopped_(std::move(stopped)) {}

AnimatedImageReader::Result VideoReader::ReadHeader(AnimatedImageHeader* header) {
    const size_t bytes = size_t{4} * static_cast<size_t>(job_.frames.width) *
                         static_cast<size_t>(job_.frames.height);
    if (bytes > job_.pixel_bytes) return Result::kNoMemory;
    frame_.resize(bytes);
    header->width = job_.frames.width;
    header->height = job_.frames.height;
    header->frame_count = job_.frames.count;
    process_ = std::make_unique<ForeignProcess>(job_.limits, stopped_);
    return process_->Start(decoder_, Arguments()) ? Result::kFrame : Result::kBroken;
}

AnimatedImageReader::Result VideoReader::Next() {
    size_t count = 0;
    const auto read = process_->Read(frame_, &count);
    if (read == ForeignProcess::Result::kDone) {
        ++drawn_;
        return Result::kFrame;
    }
    if (read != ForeignProcess::Result::kEnd) return Result::kBroken;
    const bool whole = count == 0 && drawn_ > 0 && process_->Finish() == 0;
    // The program ends well where the file is cut short, but says so.
    return whole && process_->ErrorText().empty() ? Result::kEnd : Result::kBroken;
}

const uint8* VideoReader::Row(int32 y) const {
    return frame_.data() +
           size_t{4} * static_cast<size_t>(job_.frames.width) * static_cast<size_t>(y);
}

double VideoReader::Milliseconds() const {
    const auto hundredths = [this](int32 frames) {
        return std::round(100.0 * frames * static_cast<double>(job_.frames.rate_denominator) /
                          static_cast<double>(job_.frames.rate_numerator));
    };
    return 10.0 * (hundredths(drawn_) - hundredths(drawn_ - 1));
}

std::vector<std::string> VideoReader::Arguments() const {
    const VideoCut& cut = job_.cut;
    std::string filter = "fps=" + std::to_string(job_.frames.rate_numerator) + "/" +
                         std::to_string(job_.frames.rate_denominator);
    if (cut.area) {
        filter += Format(",crop=%d:%d:%d:%d:exact=1", cut.area->width, cut.area->height,
                         cut.area->left, cut.area->top);
    }
    filter += Format(",scale=%d:%d", job_.frames.width, job_.frames.height);
    std::vector<std::string> arguments = VideoInputOptions();
    arguments.insert(arguments.begin(), "-nostdin");
    const auto add = [&](std::initializer_list<std::string> more) {
        arguments.insert(arguments.end(), more);
    };
    if (cut.start > 0) add({"-ss", InMicroseconds(cut.start)});
    if (cut.end) add({"-t", InMicroseconds(*cut.end - cut.start)});
    add({"-i", VideoInput(job_.path), "-map", "0:v:0", "-vf", filter, "-f", "rawvideo", "-pix_fmt",
         "bgra", "pipe:1"});
    return arguments;
}

}  // namespace kirto
