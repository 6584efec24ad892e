// kirto-cli: edits frame animations without a window. What writes images takes longer to load than
// most animations take to edit: command lines that need it are carried out by kirto-cli-images.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <set>
#include <string>
#include <unistd.h>
#include <utility>

#include "base/program_files.h"
#include "kit/decoding/decoder_program.h"
#include "kit/decoding/decoding_roster.h"
#include "main/cli/cli_program.h"
#include "main/cli/no_translators.h"

namespace {

constexpr const char* kImageProgram = "kirto-cli-images";

bool UsesImages(const kirto::CliArguments& arguments) {
    static const std::set<std::string> kImageOptions = {
        "--text", "--save-sequence", "--save-sheet", "--save-frame", "--export", "--list-formats"};
    return std::any_of(
        arguments.operations.begin(), arguments.operations.end(),
        [](const auto& operation) { return kImageOptions.contains(operation.option); });
}

// Becomes the program with the image formats, which belongs to this one. Returns only where that
// can't be started.
int BecomeImageProgram(char** argv) {
    std::string program = kImageProgram;
    // Not looked for in the working folder, where somebody else may have put one.
    if (const auto folder = kirto::ProgramFolder()) {
        program = kirto::ProgramFile(*folder, kImageProgram, KIRTO_HELPER_FOLDER);
        execv(program.c_str(), argv);
    }
    std::fprintf(stderr, "kirto-cli: %s can't be started: %s\n", program.c_str(),
                 std::strerror(errno));
    return kirto::kExitFailed;
}

}  // namespace

int main(int argc, char** argv) {
    kirto::PrepareCliProcess();
    kirto::CliArguments arguments;
    if (const auto status = kirto::ParseArguments(argc, argv, &arguments)) return *status;
    if (UsesImages(arguments)) return BecomeImageProgram(argv);
    kirto::NoTranslators none;
    kirto::DecodingRoster roster(kirto::DecoderProgram(), none);
    return kirto::RunCliProgram(std::move(arguments), roster);
}
