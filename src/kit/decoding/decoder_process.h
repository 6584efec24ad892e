#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <sys/types.h>

#include "base/types.h"
#include "kit/decoding/decode_channel.h"
#include "kit/decoding/decode_protocol.h"

namespace kirto {

// A process in which libraries of others decode image files, so that whatever a file makes them do
// happens there. It is asked, and answers, one request after the other; it may crash, hang, talk
// nonsense or be killed at any moment. Used by one thread at a time; the process ends with this.
class DecoderProcess {
  public:
    // How long one answer may take.
    struct Limits {
        std::chrono::milliseconds processor{10'000};
        std::chrono::milliseconds wall{60'000};
    };

    enum class Outcome {
        kAnswered,
        kGivenUp,
        kTooLong,  // the limits are passed
        kDied      // there is no process, or no sense in its answer
    };

    // program: its path. format: of all files that it will be given, as in ImageHeader. memory:
    // bytes that pictures may take there.
    DecoderProcess(const std::string& program, const std::string& format, uint64 memory,
                   Limits limits);
    ~DecoderProcess();
    DecoderProcess(const DecoderProcess&) = delete;
    DecoderProcess& operator=(const DecoderProcess&) = delete;

    // Waits for the answer. file: goes along, -1 for none. given_up: asked every now and then, on
    // this thread. pixels: what comes along, if anything. After anything but an answer the process
    // is killed, and asking again is in vain.
    Outcome Ask(const DecodeRequest& request, int file, const std::function<bool()>& given_up,
                DecodeAnswer* answer, FileDescriptor* pixels);

    // Whether there is a process that can be asked.
    bool IsAlive() const { return process_ > 0 && channel_.IsOpen(); }
    bool HasAnswered() const { return answered_; }
    uint64 Memory() const { return memory_; }

  private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds kLook{20};

    Outcome Wait(const std::function<bool()>& given_up, DecodeAnswer* answer,
                 FileDescriptor* pixels);
    std::chrono::nanoseconds ProcessorTime() const;
    void Kill();

    const uint64 memory_;
    const Limits limits_;
    DecodeChannel channel_{FileDescriptor()};
    pid_t process_ = -1;
    bool answered_ = false;
};

}  // namespace kirto
