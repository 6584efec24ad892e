#include "video_stand_in.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <vector>

#include "base/text.h"

namespace kirto {

namespace {

constexpr int kRate = 10;

void WriteFrames(const Animation& animation, const std::string& path) {
    std::ofstream file(path, std::ios::binary);
    for (const FramePointer& frame : animation.frames) {
        const Picture& picture = *frame->bitmap;
        std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
        for (int32 y = 0; y < picture.Height(); ++y) {
            picture.ReadRow(y, row.data());
            file.write(reinterpret_cast<const char*>(row.data()),
                       static_cast<std::streamsize>(row.size()));
        }
    }
}

}  // namespace

VideoStandIn::VideoStandIn(const Animation& animation, const std::string& folder)
    : folder_(std::filesystem::absolute(folder).string() + "/video-programs"),
      previous_path_(std::getenv("PATH")) {
    std::filesystem::create_directories(folder_);
    WriteFrames(animation, folder_ + "/frames");
    WriteProgram("ffprobe",
                 Format(R"(echo '{"streams":[{"width":%d,"height":%d,"avg_frame_rate":"%d/1"}],)"
                        R"("format":{"duration":"%.1f"}}')",
                        animation.width, animation.height, kRate,
                        static_cast<double>(animation.frames.Size()) / kRate));
    WriteProgram("ffmpeg", "cat '" + folder_ + "/frames'");
    setenv("PATH", (folder_ + ":" + previous_path_).c_str(), 1);
}

VideoStandIn::~VideoStandIn() {
    setenv("PATH", previous_path_.c_str(), 1);
    std::error_code error;
    std::filesystem::remove_all(folder_, error);
}

void VideoStandIn::WriteProgram(const std::string& name, const std::string& text) const {
    const std::string path = folder_ + '/' + name;
    std::ofstream(path) << "#!/bin/sh\n" << text << '\n';
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
}

}  // namespace kirto
