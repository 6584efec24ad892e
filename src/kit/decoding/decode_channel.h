// Messages of a fixed size, with a file that may come along, between two processes.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <span>
#include <utility>

#include "base/file_descriptor.h"

namespace kirto {

// One end of a pair of sockets that keep messages apart. Used by one thread at a time.
class DecodeChannel {
  public:
    enum class Received { kMessage, kNothingYet, kClosed };

    explicit DecodeChannel(FileDescriptor socket) : socket_(std::move(socket)) {}

    // Both ends of a new channel; nothing when the system gives none.
    static std::optional<std::pair<FileDescriptor, FileDescriptor>> MakePair();

    // False when the other end is closed or does not listen. file: -1 for none; stays the caller's.
    bool Send(std::span<const std::byte> message, int file);
    // Waits for a message of exactly that size, at most so long; negative: without end. kClosed
    // also where anything else comes. file: what came along, if anything.
    Received Receive(std::span<std::byte> message, FileDescriptor* file,
                     std::chrono::milliseconds longest);

    // False once the other end is closed.
    bool IsOpen() const;

  private:
    FileDescriptor socket_;
};

}  // namespace kirto
