// A decoder that does what the first byte of the file says: everything that a decoder may do once a
// file has taken it over, and, where it says so, what it should.
#include <array>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

#include "kit/animated_image.h"
#include "kit/decoding/decode_channel.h"
#include "kit/decoding/decode_protocol.h"

namespace {

using kirto::DecodeAnswer;
using kirto::FileDescriptor;

FileDescriptor SharedFile(size_t size) {
    FileDescriptor file(memfd_create("pixels", MFD_CLOEXEC));
    if (ftruncate(file.Get(), static_cast<off_t>(size)) != 0) std::abort();
    return file;
}

DecodeAnswer GoodAnswer() {
    DecodeAnswer answer{};
    answer.status = B_OK;
    answer.color_space = B_RGB32;
    answer.result = static_cast<int32>(kirto::AnimatedImageReader::Result::kFrame);
    answer.width = 2;
    answer.height = 2;
    answer.frame_count = 3;
    answer.milliseconds = 40.0;
    return answer;
}

[[noreturn]] void BurnTime() {
    for (std::atomic<int> i = 0;;)
        ++i;
}

class BadDecoder {
  public:
    void Run() {
        for (;;) {
            kirto::DecodeRequest request;
            FileDescriptor file;
            const auto received = channel_.Receive(std::as_writable_bytes(std::span(&request, 1)),
                                                   &file, std::chrono::milliseconds(-1));
            if (received != kirto::DecodeChannel::Received::kMessage) return;
            char first = '\0';
            if (file && pread(file.Get(), &first, 1, 0) == 1) order_ = first;
            Obey(request.job == kirto::DecodeJob::kNextFrame);
        }
    }

  private:
    void Send(const DecodeAnswer& answer, const FileDescriptor& file) {
        channel_.Send(std::as_bytes(std::span(&answer, 1)), file.Get());
    }
    void SendBytes(size_t size) {
        static constexpr std::array<std::byte, 4096> kZeros{};
        channel_.Send(std::span(kZeros).first(size), -1);
    }

    // Capital letters are for the frames of animations, after a good header.
    void Obey(bool next_frame) {
        const char order = static_cast<char>(next_frame ? order_ | 0x20 : order_);
        DecodeAnswer answer = GoodAnswer();
        if (broken_) std::abort();
        switch (order) {
            case 'a':
                Send(answer, SharedFile(16));
                std::exit(0);
            case 'b':
                broken_ = true;
                Send(answer, SharedFile(16));
                break;
            case 'c':
                std::abort();
            case 'e':
                std::exit(0);
            case 'k':
                raise(SIGKILL);
                break;
            case 'h':
                for (;;)
                    pause();
            case 'o':
                BurnTime();
            case 'f':
                while (channel_.Send(std::as_bytes(std::span(&answer, 1)), -1)) {
                }
                break;
            case 'l':
                SendBytes(4096);
                break;
            case 's':
                SendBytes(3);
                break;
            case 't':
                Send(answer, SharedFile(15));
                break;
            case 'n':
                Send(answer, FileDescriptor());
                break;
            case 'w':
                answer.width = answer.height = 0x7FFFFFFF;
                Send(answer, SharedFile(16));
                break;
            case 'm':
                answer.width = -2;
                Send(answer, SharedFile(16));
                break;
            case 'x':
                answer.color_space = B_CMAP8;
                answer.result = 99;
                Send(answer, SharedFile(16));
                break;
            case 'y':
                answer.status = 1234;
                answer.milliseconds = -1.0;
                Send(answer, SharedFile(16));
                break;
            default:
                Send(answer, SharedFile(16));
        }
    }

    kirto::DecodeChannel channel_{FileDescriptor(3)};
    char order_ = '\0';
    bool broken_ = false;
};

}  // namespace

int main() {
    BadDecoder().Run();
}
