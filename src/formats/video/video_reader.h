#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "kit/animated_image.h"
#include "kit/foreign_process.h"

namespace kirto {

// The programs that read videos: their files.
struct VideoPrograms {
    std::string probe;   // ffprobe
    std::string decode;  // ffmpeg
};

// Those of PATH; empty where one of them is missing.
std::optional<VideoPrograms> FindVideoPrograms();

// Draws the frames of a video, as many a second as it has, but at most kMostFramesPerSecond. The
// programs read the file and nothing else. Used by one thread, which lives as long as the reader.
class VideoReader : public AnimatedImageReader {
  public:
    // Browsers show no GIF faster.
    static constexpr int kMostFramesPerSecond = 50;

    // pixel_bytes: what a frame may take. stopped: as for ForeignProcess.
    VideoReader(VideoPrograms programs, std::string path, uint64 pixel_bytes,
                const ForeignProcess::Limits& limits, std::function<bool()> stopped);

    Result ReadHeader(AnimatedImageHeader* header) override;
    Result Next() override;
    const uint8* Row(int32 y) const override;
    // In whole hundredths of a second, which a GIF can tell; their mean is that of the video.
    double Milliseconds() const override;

  private:
    Result Probe();
    bool StartDecoding();
    std::string Input() const;

    const VideoPrograms programs_;
    const std::string path_;
    const uint64 pixel_bytes_;
    const ForeignProcess::Limits limits_;
    const std::function<bool()> stopped_;
    AnimatedImageHeader header_;
    int64 rate_numerator_ = 0;  // frames a second
    int64 rate_denominator_ = 1;
    int32 drawn_ = 0;
    std::unique_ptr<ForeignProcess> decoder_;
    std::vector<uint8> frame_;
};

}  // namespace kirto
