#include "support/fake_video_programs.h"

#include <filesystem>
#include <fstream>

namespace kirto::test {

FakeVideoPrograms::FakeVideoPrograms()
    : path_("PATH", (folder_.Path() + ":" + std::getenv("PATH")).c_str()) {
    Write("ffprobe",
          R"(case "$*" in *broken.mp4) exit 1;; esac
echo '{"streams":[{"width":4,"height":2,"avg_frame_rate":"10/1"}],"format":{"duration":"2.0"}}')");
    // The program may write no file, so that its output has to tell what it was asked for.
    Write("ffmpeg",
          R"(case "$*" in
*'-ss 500000us -t 1000000us -i file:'*' -map 0:v:0 -vf fps=4000/1000,scale=2:1 '*) head -c 32;;
*) head -c 640;;
esac </dev/zero)");
}

void FakeVideoPrograms::Write(const std::string& name, const std::string& text) const {
    const std::string path = folder_.File(name);
    std::ofstream(path) << "#!/bin/sh\n" << text << "\n";
    std::filesystem::permissions(path, std::filesystem::perms::owner_all);
}

}  // namespace kirto::test
