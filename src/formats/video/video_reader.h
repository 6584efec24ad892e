#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "formats/video/video_cut.h"
#include "formats/video/video_programs.h"
#include "kit/animated_image.h"
#include "kit/foreign_process.h"

namespace kirto {

// Draws the frames that a cut makes of a video. The program reads the file and nothing else. Used
// by one thread, which lives as long as the reader.
class VideoReader : public AnimatedImageReader {
  public:
    // What is to be drawn, and with how much memory and patience.
    struct Job {
        std::string path;
        VideoCut cut = {};
        VideoFrames frames = {};  // as FramesOf gives them for the cut
        uint64 pixel_bytes = 0;   // what a frame may take
        ForeignProcess::Limits limits = {};
    };

    // decoder: the file of ffmpeg. stopped: as for ForeignProcess.
    VideoReader(std::string decoder, Job job, std::function<bool()> stopped);

    Result ReadHeader(AnimatedImageHeader* header) override;
    Result Next() override;
    const uint8* Row(int32 y) const override;
    // In whole hundredths of a second, which a GIF can tell; their mean is that of the rate.
    double Milliseconds() const override;

  private:
    std::vector<std::string> Arguments() const;

    const std::string decoder_;
    const Job job_;
    const std::function<bool()> stopped_;
    int32 drawn_ = 0;
    std::unique_ptr<ForeignProcess> process_;
    std::vector<uint8> frame_;
};

}  // namespace kirto
