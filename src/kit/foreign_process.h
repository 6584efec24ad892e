// Other people's programs, which read or make files of formats that are not ours.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <sys/types.h>
#include <vector>

#include "base/types.h"

namespace kirto {

// The file of the program in one of the folders of PATH, or nothing. Relative folders don't count:
// somebody else may have put a program there.
std::optional<std::string> FindProgram(const std::string& name);

// A program that runs beside this one, in a process group of its own and without a shell. It is
// killed with all it has started when this object is destroyed or the thread that started it ends.
// It has no network where the kernel can take that away. Used by one thread at a time.
class ForeignProcess {
  public:
    struct Limits {
        uint64 address_space = uint64{4} << 30;  // bytes
        uint64 file_size = 0;                    // bytes of each file that it writes
        uint64 open_files = 64;
        uint64 processor_seconds = 3600;
        std::chrono::milliseconds silence{20000};  // without a byte read or written
    };
    enum class Result {
        kDone,
        kEnd,      // it has closed its end
        kStopped,  // as asked for
        kSilent,   // it kept still for too long
        kFlooded   // it wrote more than it was to while it was written to
    };

    // stopped: asked every few milliseconds, on the thread that waits, whether to give up. Empty:
    // never.
    explicit ForeignProcess(const Limits& limits, std::function<bool()> stopped = {});
    ~ForeignProcess();
    ForeignProcess(const ForeignProcess&) = delete;
    ForeignProcess& operator=(const ForeignProcess&) = delete;

    // Its output goes to that file, which outlives the call of Start(), and Read is not used.
    // Called before that.
    void SendOutputTo(int descriptor) { output_file_ = descriptor; }
    // program: its file. arguments: those behind its name. with_input: whether Write is used; else
    // its input is empty. Called once; false with errno set.
    bool Start(const std::string& program, const std::vector<std::string>& arguments,
               bool with_input = false);
    // Waits for all of the bytes; kEnd with fewer where its output ends. count: those read.
    Result Read(std::span<uint8> bytes, size_t* count);
    // Waits until all of the bytes are taken. What it writes meanwhile is kept for Read, up to
    // kMostPending bytes.
    Result Write(std::span<const uint8> bytes);
    // Its input ends.
    void CloseInput();
    // Waits for its end. The exit status, or nothing where it was killed, here or by a signal.
    std::optional<int> Finish();
    // The last bytes of what it told on standard error, up to kMostErrorText.
    const std::string& ErrorText() const { return error_text_; }

    static constexpr size_t kMostPending = size_t{1} << 20;
    static constexpr size_t kMostErrorText = 4096;
    static constexpr size_t kMostInPipe = size_t{1} << 20;

  private:
    using Clock = std::chrono::steady_clock;

    bool OpenOutput(int* theirs);
    // Waits a little for the events of the descriptor and takes in what standard error tells.
    // Returns the events that came.
    short WaitFor(int descriptor, short events);
    std::optional<Result> GiveUp(Clock::time_point last) const;
    // What comes from its output now: bytes read, 0 at its end, -1 for nothing yet.
    ssize_t ReadNow(std::span<uint8> bytes) const;
    bool DrainError();
    // False when it has written too much.
    bool KeepPending();
    void Kill();

    const Limits limits_;
    const std::function<bool()> stopped_;
    pid_t child_ = -1;
    int input_ = -1;
    int output_ = -1;
    int output_file_ = -1;  // in place of that; not owned
    int error_ = -1;
    std::vector<uint8> pending_;
    std::string error_text_;
};

}  // namespace kirto
