#include "cli/cli_run.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/fli_builder.h"

namespace kirto::test {

namespace {

std::string TextOf(const std::string& path) {
    const std::vector<uint8> bytes = ReadBytes(path);
    return {bytes.begin(), bytes.end()};
}

int OpenForWriting(const std::string& path) {
    return open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
}

// Until the other side is gone, which Linux reports as an error.
std::string ReadTerminal(int descriptor) {
    std::string text;
    char buffer[4096];
    for (;;) {
        const ssize_t count = read(descriptor, buffer, sizeof(buffer));
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) return text;
        text.append(buffer, static_cast<size_t>(count));
    }
}

int ExitStatusOf(int child) {
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return -1;
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace

CliHome::CliHome() {
    SetEnvironment("HOME", home_.Path());
    SetEnvironment("XDG_CONFIG_HOME", home_.File("config"));
    SetEnvironment("LC_ALL", "C.UTF-8");
}

void CliHome::SetEnvironment(const std::string& name, const std::string& value) {
    environment_.emplace_back(name, value);
}

int CliHome::Start(const std::string& program, const Arguments& arguments, int out, int err) const {
    std::vector<std::string> texts = arguments;
    texts.insert(texts.begin(), program);
    std::vector<char*> argv;
    for (std::string& text : texts)
        argv.push_back(text.data());
    argv.push_back(nullptr);
    const int child = fork();
    if (child != 0) return child;
    for (const auto& [name, value] : environment_)
        setenv(name.c_str(), value.c_str(), 1);
    const int nothing = open("/dev/null", O_RDONLY);
    if (chdir(files_.Path().c_str()) == 0 && dup2(nothing, STDIN_FILENO) >= 0 &&
        dup2(out, STDOUT_FILENO) >= 0 && dup2(err, STDERR_FILENO) >= 0) {
        execv(program.c_str(), argv.data());
    }
    _exit(127);
}

RunResult CliHome::RunProgram(const std::string& program, const Arguments& arguments) const {
    const std::string out_path = home_.File("stdout");
    const std::string err_path = home_.File("stderr");
    const int out = OpenForWriting(out_path);
    const int err = OpenForWriting(err_path);
    RunResult result;
    result.status = ExitStatusOf(Start(program, arguments, out, err));
    close(out);
    close(err);
    result.out = TextOf(out_path);
    result.err = TextOf(err_path);
    return result;
}

int CliHome::StartProgram(const std::string& program, const Arguments& arguments) const {
    const int nothing = OpenForWriting("/dev/null");
    const int child = Start(program, arguments, nothing, nothing);
    close(nothing);
    return child;
}

RunResult CliHome::Run(const Arguments& arguments) const {
    return RunProgram(KIRTO_CLI, arguments);
}

RunResult CliHome::RunOnTerminal(const Arguments& arguments, int stream) const {
    const bool on_output = stream == STDOUT_FILENO;
    const std::string other_path = home_.File(on_output ? "stderr" : "stdout");
    const int other = OpenForWriting(other_path);
    int terminal = -1;
    int program_side = -1;
    RunResult result;
    if (openpty(&terminal, &program_side, nullptr, nullptr, nullptr) != 0) return result;
    const int child = Start(KIRTO_CLI, arguments, on_output ? program_side : other,
                            on_output ? other : program_side);
    close(program_side);
    close(other);
    (on_output ? result.out : result.err) = ReadTerminal(terminal);
    close(terminal);
    result.status = ExitStatusOf(child);
    (on_output ? result.err : result.out) = TextOf(other_path);
    return result;
}

RunResult CliHome::RunInto(const std::string& path, const Arguments& arguments) const {
    const std::string err_path = home_.File("stderr");
    const int out = open(path.c_str(), O_WRONLY | O_CLOEXEC);
    const int err = OpenForWriting(err_path);
    RunResult result;
    result.status = ExitStatusOf(Start(KIRTO_CLI, arguments, out, err));
    close(out);
    close(err);
    result.err = TextOf(err_path);
    return result;
}

Json CliHome::Info(Arguments arguments) const {
    arguments.push_back("--info-json");
    const RunResult result = Run(arguments);
    EXPECT_EQ(result.status, 0) << result.err;
    Json info = Json::parse(result.out, nullptr, false);
    EXPECT_TRUE(info.is_object()) << result.out;
    return info;
}

std::string CliHome::Write(const std::string& name, const std::vector<uint8>& bytes) const {
    WriteBytes(File(name), bytes);
    return name;
}

namespace {

GifBuilder TwoPixels(int32 frames) {
    GifBuilder gif(2, 1, {0x000000, 0xFFFFFF, 0xFF0000, 0x0000FF});
    for (int32 i = 0; i < frames; ++i) {
        GifBuilder::Image image;
        image.width = 2;
        image.indices = {static_cast<uint8>(i % 4), static_cast<uint8>((i + 1) % 4)};
        image.min_code_size = 2;
        gif.Control(0, i == 2 ? 20 : 10).Add(image);
    }
    return gif;
}

}  // namespace

std::vector<uint8> ThreeFrameGif() {
    return TwoPixels(3).Loop(0).Trailer();
}

std::vector<uint8> DamagedGif(int32 whole_frames) {
    return TwoPixels(whole_frames).Bytes({0x2C, 0, 0});
}

std::vector<uint8> TwoFrameFli() {
    FliBuilder fli(2, 1);
    fli.Record().Color256({{0, {0x000000, 0xFF0000}}}).Copy({0, 1});
    fli.Record().Copy({1, 0});
    return fli;
}

std::vector<std::string> NamesIn(const Json& info) {
    std::vector<std::string> names;
    for (const Json& frame : info["frames"])
        names.push_back(frame["name"]);
    return names;
}

}  // namespace kirto::test
