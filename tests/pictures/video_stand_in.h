#pragma once

#include <string>

#include "animation/animation.h"

namespace kirto {

// Programs "ffprobe" and "ffmpeg" in front of all others, for which every file is a video of the
// animation's frames, ten of them a second, until the end of the scope. So pictures look the same
// wherever they are drawn.
class VideoStandIn {
  public:
    // The frames are as large as the canvas. folder: where the programs are written.
    VideoStandIn(const Animation& animation, const std::string& folder);
    ~VideoStandIn();
    VideoStandIn(const VideoStandIn&) = delete;
    VideoStandIn& operator=(const VideoStandIn&) = delete;

  private:
    void WriteProgram(const std::string& name, const std::string& text) const;

    const std::string folder_;
    std::string previous_path_;
};

}  // namespace kirto
