// Arbitrary bytes as the arguments of kirto-cli, an argument a line, and each of them as a value of
// its options: whatever is taken is within its bounds.
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "animation/frame_set.h"
#include "animation/pauses.h"
#include "base/thread_count.h"
#include "formats/export/export_settings.h"
#include "formats/video/video_cut.h"
#include "main/cli/caption.h"
#include "main/cli/cli_arguments.h"
#include "main/cli/picture_values.h"

namespace {

constexpr int32 kFrames = 7;
constexpr int32 kLargestSide = 65535;

void Check(bool holds) {
    if (!holds) std::abort();
}

// What the program says is of no interest, and libFuzzer speaks there as well.
class Muted {
  public:
    Muted() : out_(std::cout.rdbuf(said_.rdbuf())), err_(std::cerr.rdbuf(said_.rdbuf())) {}
    ~Muted() {
        std::cout.rdbuf(out_);
        std::cerr.rdbuf(err_);
    }
    Muted(const Muted&) = delete;
    Muted& operator=(const Muted&) = delete;

    bool SaidSomething() const { return !said_.str().empty(); }

  private:
    std::ostringstream said_;
    std::streambuf* const out_;
    std::streambuf* const err_;
};

void CheckArguments(const std::vector<std::string>& texts) {
    std::vector<const char*> arguments{"kirto-cli"};
    for (const std::string& text : texts)
        arguments.push_back(text.c_str());
    const Muted muted;
    kirto::CliArguments parsed;
    const auto status =
        kirto::ParseArguments(static_cast<int>(arguments.size()), arguments.data(), &parsed);
    if (status) {
        Check((*status == kirto::kExitDone || *status == kirto::kExitUsage) &&
              muted.SaidSomething());
        return;
    }
    Check(parsed.operations.size() <= texts.size());
    for (const kirto::CliOperation& operation : parsed.operations)
        Check(operation.option.starts_with("-"));
    if (parsed.threads) Check(*parsed.threads >= 1 && *parsed.threads <= kirto::kMostThreads);
}

void CheckSize(const std::optional<kirto::CanvasSize>& size) {
    if (!size) return;
    Check(size->width >= 1 && size->width <= kLargestSide);
    Check(size->height >= 1 && size->height <= kLargestSide);
}

void CheckValue(const std::string& text) {
    if (const auto color = kirto::ParseColor(text)) Check(*color <= 0xFFFFFF);
    if (const auto percent = kirto::ParsePercent(text)) Check(*percent >= 0 && *percent <= 100);
    CheckSize(kirto::ParseSize(text));
    CheckSize(kirto::ParseNewSize(text, {640, 1}));
    if (const auto set = kirto::ParseFrameSet(text, kFrames))
        Check(set->Count() <= kFrames && (set->Count() == 0 || set->Last() < kFrames));
    std::string reason;
    if (!kirto::ParseCaption(text, &reason)) Check(!reason.empty());
    static_cast<void>(kirto::ParsePauseChange(text));
    static_cast<void>(kirto::ParseByteSize(text));
    static_cast<void>(kirto::ParseVideoCut(text));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    std::vector<std::string> texts;
    std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
    for (std::string line; std::getline(lines, line);)
        texts.push_back(line);
    CheckArguments(texts);
    for (const std::string& text : texts)
        CheckValue(text);
    return 0;
}
