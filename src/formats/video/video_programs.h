// The programs that read videos, and what they may read.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "formats/video/video_probe.h"
#include "kit/foreign_process.h"

namespace kirto {

// Their files.
struct VideoPrograms {
    std::string probe;   // ffprobe
    std::string decode;  // ffmpeg
};

// Those of PATH; nothing where one of them is missing.
std::optional<VideoPrograms> FindVideoPrograms();

// Options of both programs: they read files of few kinds, and none that a file names.
std::vector<std::string> VideoInputOptions();
// How both programs are told of the file, whose name may look like an option or an address.
std::string VideoInput(const std::string& path);

// Asks ffprobe about the file. stopped: as for ForeignProcess. Nothing where there is no video that
// can be read, and when stopped.
std::optional<VideoProperties> ProbeVideo(const VideoPrograms& programs, const std::string& path,
                                          const ForeignProcess::Limits& limits,
                                          const std::function<bool()>& stopped);

}  // namespace kirto
