// Stand-ins for the programs that read videos.
#pragma once

#include <string>

#include "support/environment.h"
#include "support/test_support.h"

namespace kirto::test {

// Programs "ffprobe" and "ffmpeg" in front of all others, until the end of the scope. Every file is
// a video of 2 seconds with 10 pictures of 4 x 2 pixels each, but those whose name ends in
// "broken.mp4". Decoding gives four frames of zeros for kPart, and 640 zeros for anything else.
class FakeVideoPrograms {
  public:
    static constexpr const char* kPart = "0.5-1.5@4:2x";

    FakeVideoPrograms();

  private:
    void Write(const std::string& name, const std::string& text) const;

    TemporaryFolder folder_;
    ScopedEnvironment path_;
};

}  // namespace kirto::test
