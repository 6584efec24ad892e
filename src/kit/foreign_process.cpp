#include "kit/foreign_process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sched.h>
#include <sstream>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace kirto {

namespace {

// How long a request to stop may go unnoticed.
constexpr int kSliceMilliseconds = 20;
constexpr int kNoProgram = 127;

void CloseDescriptor(int* descriptor) {
    if (*descriptor >= 0) close(*descriptor);
    *descriptor = -1;
}

struct ChildEnds {
    int input = -1;
    int output = -1;
    int error = -1;
};

void Limit(__rlimit_resource resource, uint64 most) {
    const rlimit limit{most, most};
    setrlimit(resource, &limit);
}

// Between fork and exec, where other threads may have held any lock: system calls only.
[[noreturn]] void BecomeProgram(const char* program, char** arguments, const ChildEnds& ends,
                                const ForeignProcess::Limits& limits, pid_t parent) {
    setpgid(0, 0);
    // Without the right to do that the program runs with the network.
    unshare(CLONE_NEWUSER | CLONE_NEWNET);
    // A change of the user's rights would undo it, so it comes behind.
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(kNoProgram);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    for (const int number : {SIGPIPE, SIGINT, SIGTERM, SIGHUP})
        signal(number, SIG_DFL);
    const bool ready = dup2(ends.input, STDIN_FILENO) >= 0 &&
                       dup2(ends.output, STDOUT_FILENO) >= 0 &&
                       dup2(ends.error, STDERR_FILENO) >= 0;
    if (!ready) _exit(kNoProgram);
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_AS, limits.address_space);
    Limit(RLIMIT_FSIZE, limits.file_size);
    Limit(RLIMIT_NOFILE, limits.open_files);
    Limit(RLIMIT_CPU, limits.processor_seconds);
    execv(program, arguments);
    _exit(kNoProgram);
}

void DoNotBlock(int descriptor) {
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) | O_NONBLOCK);
}

// A pipe for what the program writes.
bool OpenPipe(int* ours, int* theirs) {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) return false;
    *ours = ends[0];
    *theirs = ends[1];
    DoNotBlock(*ours);
    return true;
}

// A socket, as writing to a pipe that is closed would end this program by a signal.
bool OpenInput(bool with_input, int* ours, int* theirs) {
    if (!with_input) {
        *theirs = open("/dev/null", O_RDONLY | O_CLOEXEC);
        return *theirs >= 0;
    }
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return false;
    *ours = ends[0];
    *theirs = ends[1];
    return true;
}

}  // namespace

std::optional<std::string> FindProgram(const std::string& name) {
    const char* path = std::getenv("PATH");
    std::istringstream folders(path ? path : "/usr/local/bin:/usr/bin:/bin");
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (!folder.starts_with('/')) continue;
        std::string file = folder + "/" + name;
        if (access(file.c_str(), X_OK) == 0) return file;
    }
    return std::nullopt;
}

ForeignProcess::ForeignProcess(const Limits& limits, std::function<bool()> stopped)
    : limits_(limits), stopped_(std::move(stopped)) {}

ForeignProcess::~ForeignProcess() {
    Kill();
    for (int* descriptor : {&input_, &output_, &error_})
        CloseDescriptor(descriptor);
}

bool ForeignProcess::Start(const std::string& program, const std::vector<std::string>& arguments,
                           bool with_input) {
    std::vector<char*> values{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        values.push_back(const_cast<char*>(argument.c_str()));
    values.push_back(nullptr);
    ChildEnds ends;
    const bool ready = OpenInput(with_input, &input_, &ends.input) && OpenOutput(&ends.output) &&
                       OpenPipe(&error_, &ends.error);
    if (ready) {
        const pid_t parent = getpid();
        child_ = fork();
        if (child_ == 0) BecomeProgram(program.c_str(), values.data(), ends, limits_, parent);
        // Both do it, so that it is done whichever runs first.
        if (child_ > 0) setpgid(child_, child_);
    }
    const int error = errno;
    for (int* descriptor : {&ends.input, &ends.output, &ends.error})
        CloseDescriptor(descriptor);
    errno = error;
    return child_ > 0;
}

bool ForeignProcess::OpenOutput(int* theirs) {
    if (output_file_ < 0) return OpenPipe(&output_, theirs);
    *theirs = fcntl(output_file_, F_DUPFD_CLOEXEC, 0);
    return *theirs >= 0;
}

ForeignProcess::Result ForeignProcess::Read(std::span<uint8> bytes, size_t* count) {
    *count = std::min(bytes.size(), pending_.size());
    std::copy_n(pending_.begin(), *count, bytes.begin());
    pending_.erase(pending_.begin(), pending_.begin() + static_cast<std::ptrdiff_t>(*count));
    auto last = Clock::now();
    while (*count < bytes.size()) {
        if (const auto reason = GiveUp(last)) return *reason;
        if (WaitFor(output_, POLLIN) == 0) continue;
        const ssize_t read = ReadNow(bytes.subspan(*count));
        if (read == 0) return Result::kEnd;
        if (read < 0) continue;
        *count += static_cast<size_t>(read);
        last = Clock::now();
    }
    return Result::kDone;
}

ForeignProcess::Result ForeignProcess::Write(std::span<const uint8> bytes) {
    auto last = Clock::now();
    while (!bytes.empty()) {
        if (const auto reason = GiveUp(last)) return *reason;
        const short events = WaitFor(input_, POLLOUT);
        if (!KeepPending()) return Result::kFlooded;
        if (events == 0) continue;
        const ssize_t sent = send(input_, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent > 0) {
            bytes = bytes.subspan(static_cast<size_t>(sent));
            last = Clock::now();
        } else if (errno != EAGAIN && errno != EINTR) {
            return Result::kEnd;
        }
    }
    return Result::kDone;
}

void ForeignProcess::CloseInput() {
    CloseDescriptor(&input_);
}

std::optional<int> ForeignProcess::Finish() {
    CloseInput();
    const auto last = Clock::now();
    int status = 0;
    pid_t ended = 0;
    while (child_ > 0 && (ended = waitpid(child_, &status, WNOHANG)) == 0 && !GiveUp(last))
        WaitFor(-1, 0);
    // As much as a pipe may still hold of what it has said.
    for (size_t held = 0; held < kMostInPipe && DrainError(); held += kMostErrorText) {
    }
    if (child_ <= 0 || ended <= 0) {
        Kill();
        return std::nullopt;
    }
    // What it has started and left behind goes with it.
    kill(-child_, SIGKILL);
    child_ = -1;
    if (!WIFEXITED(status)) return std::nullopt;
    return WEXITSTATUS(status);
}

short ForeignProcess::WaitFor(int descriptor, short events) {
    std::array<pollfd, 2> waiting{pollfd{descriptor, events, 0}, pollfd{error_, POLLIN, 0}};
    if (poll(waiting.data(), waiting.size(), kSliceMilliseconds) <= 0) return 0;
    if (waiting[1].revents != 0) DrainError();
    return waiting[0].revents;
}

std::optional<ForeignProcess::Result> ForeignProcess::GiveUp(Clock::time_point last) const {
    if (stopped_ && stopped_()) return Result::kStopped;
    if (Clock::now() - last > limits_.silence) return Result::kSilent;
    return std::nullopt;
}

ssize_t ForeignProcess::ReadNow(std::span<uint8> bytes) const {
    const ssize_t count = read(output_, bytes.data(), bytes.size());
    if (count < 0 && errno != EAGAIN && errno != EINTR) return 0;
    return count;
}

// False when there is nothing now.
bool ForeignProcess::DrainError() {
    std::array<char, kMostErrorText> text{};
    const ssize_t count = error_ >= 0 ? read(error_, text.data(), text.size()) : -1;
    if (count == 0) CloseDescriptor(&error_);
    if (count <= 0) return false;
    error_text_.append(text.data(), static_cast<size_t>(count));
    if (error_text_.size() > kMostErrorText)
        error_text_.erase(0, error_text_.size() - kMostErrorText);
    return true;
}

bool ForeignProcess::KeepPending() {
    std::array<uint8, 4096> bytes{};
    for (ssize_t count = 0; (count = ReadNow(bytes)) > 0;) {
        pending_.insert(pending_.end(), bytes.begin(), bytes.begin() + count);
        if (pending_.size() > kMostPending) return false;
    }
    return true;
}

void ForeignProcess::Kill() {
    if (child_ <= 0) return;
    kill(-child_, SIGKILL);
    kill(child_, SIGKILL);
    while (waitpid(child_, nullptr, 0) < 0 && errno == EINTR) {
    }
    child_ = -1;
}

}  // namespace kirto
