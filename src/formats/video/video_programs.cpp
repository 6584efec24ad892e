#include "formats/video/video_programs.h"

#include <filesystem>
#include <string_view>

namespace kirto {

namespace {

constexpr size_t kMostProbeBytes = size_t{1} << 16;

}  // namespace

std::optional<VideoPrograms> FindVideoPrograms() {
    const auto probe = FindProgram("ffprobe");
    const auto decode = FindProgram("ffmpeg");
    if (!probe || !decode) return std::nullopt;
    return VideoPrograms{*probe, *decode};
}

// Lists of other files are none of the kinds.
std::vector<std::string> VideoInputOptions() {
    return {"-v", "error", "-protocol_whitelist", "file", "-format_whitelist", "mov,matroska,avi"};
}

std::string VideoInput(const std::string& path) {
    std::error_code error;
    return "file:" + std::filesystem::absolute(path, error).string();
}

std::optional<VideoProperties> ProbeVideo(const VideoPrograms& programs, const std::string& path,
                                          const ForeignProcess::Limits& limits,
                                          const std::function<bool()>& stopped) {
    std::vector<std::string> arguments = VideoInputOptions();
    arguments.insert(arguments.end(),
                     {"-of", "json", "-select_streams", "v:0", "-show_entries",
                      "stream=width,height,avg_frame_rate,r_frame_rate:stream_side_data=rotation:"
                      "format=duration",
                      "-i", VideoInput(path)});
    ForeignProcess process(limits, stopped);
    if (!process.Start(programs.probe, arguments)) return std::nullopt;
    std::string text(kMostProbeBytes, '\0');
    size_t count = 0;
    const auto read = process.Read({reinterpret_cast<uint8*>(text.data()), text.size()}, &count);
    if (read != ForeignProcess::Result::kEnd || process.Finish() != 0) return std::nullopt;
    return ParseVideoProbe(std::string_view(text).substr(0, count));
}

}  // namespace kirto
