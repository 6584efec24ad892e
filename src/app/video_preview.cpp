#include "app/video_preview.h"

#include <algorithm>

#include "app/open_animation.h"
#include "base/core_text.h"
#include "base/text.h"
#include "formats/video/video_reader.h"

namespace kirto {

namespace {

constexpr int32 kLongestSide = 320;    // of the pictures, pixels
constexpr double kMostPictures = 400;  // of a video
constexpr double kMostPicturesPerSecond = 10;
constexpr uint64 kBytesPerMegabyte = 1'000'000;

// The whole video in few small pictures.
VideoCut CutToShow(const VideoProperties& video) {
    VideoCut cut;
    if (std::max(video.width, video.height) > kLongestSide)
        (video.width >= video.height ? cut.width : cut.height) = kLongestSide;
    const double own =
        static_cast<double>(video.rate_numerator) / static_cast<double>(video.rate_denominator);
    const double wanted = video.seconds > 0 ? kMostPictures / video.seconds : 1;
    cut.rate =
        std::clamp(std::min(own, wanted), VideoCut::kFewestFramesPerSecond, kMostPicturesPerSecond);
    return cut;
}

}  // namespace

std::string ReadVideoToShow(const std::string& path, const VideoViewer& viewer) {
    const auto programs = FindVideoPrograms();
    if (!programs) return kNoVideoProgramsText;
    VideoReader::Job job{path};
    const auto video = ProbeVideo(*programs, path, job.limits, viewer.given_up);
    const auto frames = video ? FramesOf(*video, CutToShow(*video)) : std::nullopt;
    if (!frames) return viewer.given_up() ? "" : kUnreadableAnimationText;
    viewer.begin({*video, *frames});
    job.cut = CutToShow(*video);
    job.frames = *frames;
    job.pixel_bytes = uint64{4} * kLongestSide * kLongestSide;
    VideoReader reader(programs->decode, job, viewer.given_up);
    AnimatedImageHeader header;
    int32 shown = 0;
    auto result = reader.ReadHeader(&header);
    while (result == AnimatedImageReader::Result::kFrame && shown <= kMostPictures) {
        result = reader.Next();
        if (result != AnimatedImageReader::Result::kFrame) break;
        viewer.show(reader.Row(0));
        ++shown;
    }
    return shown > 0 || viewer.given_up() ? "" : kUnreadableAnimationText;
}

std::string DescribeFrames(const VideoFrames& frames) {
    const std::string size =
        CoreText::With(CoreText::tr("%1 × %2 pixels"),
                       {std::to_string(frames.width), std::to_string(frames.height)});
    if (frames.count == 0) return CoreText::With(CoreText::tr("Frames of %1"), {size});
    const uint64 megabytes = (frames.Bytes() + kBytesPerMegabyte - 1) / kBytesPerMegabyte;
    return CoreText::With(frames.count == 1 ? CoreText::tr("%1 frame of %2, at most %3 MB")
                                            : CoreText::tr("%1 frames of %2, at most %3 MB"),
                          {std::to_string(frames.count), size, std::to_string(megabytes)});
}

}  // namespace kirto
