#include "kit/decoding/decoder_process.h"

#include <array>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace kirto {

namespace {

// Where the process finds its end of the channel.
constexpr int kChannel = 3;

// What the process starts with: the channel, no files else, no signals blocked or ignored, and a
// group of its own, so that Ctrl-C in a terminal is for the program alone.
class Surroundings {
  public:
    explicit Surroundings(int channel) {
        posix_spawn_file_actions_init(&files_);
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&files_, stream, "/dev/null", O_RDWR, 0);
        posix_spawn_file_actions_adddup2(&files_, channel, kChannel);
        posix_spawn_file_actions_addclosefrom_np(&files_, kChannel + 1);
        posix_spawnattr_init(&attributes_);
        sigset_t none;
        sigemptyset(&none);
        posix_spawnattr_setsigmask(&attributes_, &none);
        sigset_t all;
        sigfillset(&all);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        posix_spawnattr_setpgroup(&attributes_, 0);
        posix_spawnattr_setflags(
            &attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~Surroundings() {
        posix_spawn_file_actions_destroy(&files_);
        posix_spawnattr_destroy(&attributes_);
    }
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;

    // The process, or -1.
    pid_t Start(const std::string& program, std::array<std::string, 2> options) {
        std::string name = program;
        char* arguments[] = {name.data(), options[0].data(), options[1].data(), nullptr};
        pid_t process = -1;
        const int error =
            posix_spawn(&process, program.c_str(), &files_, &attributes_, arguments, environ);
        return error == 0 ? process : -1;
    }

  private:
    posix_spawn_file_actions_t files_;
    posix_spawnattr_t attributes_;
};

}  // namespace

DecoderProcess::DecoderProcess(const std::string& program, const std::string& format, uint64 memory,
                               Limits limits)
    : memory_(memory), limits_(limits) {
    auto ends = DecodeChannel::MakePair();
    if (!ends) return;
    // An end that lies where the process is to find it would be closed on the way there.
    const FileDescriptor theirs(fcntl(ends->second.Get(), F_DUPFD_CLOEXEC, kChannel + 1));
    if (!theirs) return;
    process_ = Surroundings(theirs.Get()).Start(program, {format, std::to_string(memory)});
    channel_ = DecodeChannel(std::move(ends->first));
}

DecoderProcess::~DecoderProcess() {
    Kill();
}

void DecoderProcess::Kill() {
    if (process_ < 1) return;
    kill(process_, SIGKILL);
    while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
    process_ = -1;
}

DecoderProcess::Outcome DecoderProcess::Ask(const DecodeRequest& request, int file,
                                            const std::function<bool()>& given_up,
                                            DecodeAnswer* answer, FileDescriptor* pixels) {
    Outcome outcome = Outcome::kDied;
    if (process_ > 0 && channel_.Send(std::as_bytes(std::span(&request, 1)), file)) {
        outcome = Wait(given_up, answer, pixels);
    }
    answered_ = answered_ || outcome == Outcome::kAnswered;
    if (outcome != Outcome::kAnswered) Kill();
    return outcome;
}

DecoderProcess::Outcome DecoderProcess::Wait(const std::function<bool()>& given_up,
                                             DecodeAnswer* answer, FileDescriptor* pixels) {
    const Clock::time_point start = Clock::now();
    const std::chrono::nanoseconds used = ProcessorTime();
    for (;;) {
        switch (channel_.Receive(std::as_writable_bytes(std::span(answer, 1)), pixels, kLook)) {
            case DecodeChannel::Received::kMessage:
                return Outcome::kAnswered;
            case DecodeChannel::Received::kClosed:
                return Outcome::kDied;
            case DecodeChannel::Received::kNothingYet:
                break;
        }
        if (given_up()) return Outcome::kGivenUp;
        const bool slow = ProcessorTime() - used > limits_.processor;
        if (slow || Clock::now() - start > limits_.wall) return Outcome::kTooLong;
    }
}

// What the process and its threads have used so far; zero where the system does not tell.
std::chrono::nanoseconds DecoderProcess::ProcessorTime() const {
    clockid_t clock;
    timespec time{};
    if (clock_getcpuclockid(process_, &clock) != 0 || clock_gettime(clock, &time) != 0) return {};
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

}  // namespace kirto
