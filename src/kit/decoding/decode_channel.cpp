#include "kit/decoding/decode_channel.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/uio.h>

namespace kirto {

namespace {

// Room for one descriptor beside a message.
struct Control {
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> bytes{};
};

// The descriptors that came along: the first one, the others are closed.
FileDescriptor FileOf(msghdr& header) {
    FileDescriptor first;
    for (cmsghdr* part = CMSG_FIRSTHDR(&header); part; part = CMSG_NXTHDR(&header, part)) {
        if (part->cmsg_level != SOL_SOCKET || part->cmsg_type != SCM_RIGHTS) continue;
        const size_t count = (part->cmsg_len - CMSG_LEN(0)) / sizeof(int);
        for (size_t i = 0; i < count; ++i) {
            int number = -1;
            std::memcpy(&number, CMSG_DATA(part) + i * sizeof(int), sizeof(number));
            FileDescriptor file(number);
            if (!first) first = std::move(file);
        }
    }
    return first;
}

}  // namespace

std::optional<std::pair<FileDescriptor, FileDescriptor>> DecodeChannel::MakePair() {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_CLOEXEC, 0, ends) != 0) return std::nullopt;
    return std::pair(FileDescriptor(ends[0]), FileDescriptor(ends[1]));
}

bool DecodeChannel::IsOpen() const {
    pollfd end{socket_.Get(), POLLRDHUP, 0};
    return poll(&end, 1, 0) == 0;
}

bool DecodeChannel::Send(std::span<const std::byte> message, int file) {
    iovec part{const_cast<std::byte*>(message.data()), message.size()};
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    Control control;
    if (file >= 0) {
        header.msg_control = control.bytes.data();
        header.msg_controllen = control.bytes.size();
        cmsghdr* rights = CMSG_FIRSTHDR(&header);
        rights->cmsg_level = SOL_SOCKET;
        rights->cmsg_type = SCM_RIGHTS;
        rights->cmsg_len = CMSG_LEN(sizeof(int));
        std::memcpy(CMSG_DATA(rights), &file, sizeof(file));
    }
    ssize_t sent = 0;
    do {
        // Of two that take turns, neither fills the other's queue.
        sent = sendmsg(socket_.Get(), &header, MSG_NOSIGNAL | MSG_DONTWAIT);
    } while (sent < 0 && errno == EINTR);
    return sent == static_cast<ssize_t>(message.size());
}

DecodeChannel::Received DecodeChannel::Receive(std::span<std::byte> message, FileDescriptor* file,
                                               std::chrono::milliseconds longest) {
    pollfd waiting{socket_.Get(), POLLIN, 0};
    const int ready = poll(&waiting, 1, static_cast<int>(longest.count()));
    if (ready == 0 || (ready < 0 && errno == EINTR)) return Received::kNothingYet;
    if (ready < 0) return Received::kClosed;

    iovec part{message.data(), message.size()};
    msghdr header{};
    header.msg_iov = &part;
    header.msg_iovlen = 1;
    Control control;
    header.msg_control = control.bytes.data();
    header.msg_controllen = control.bytes.size();
    const ssize_t size = recvmsg(socket_.Get(), &header, MSG_CMSG_CLOEXEC | MSG_DONTWAIT);
    if (size < 0 && (errno == EAGAIN || errno == EINTR)) return Received::kNothingYet;
    FileDescriptor came = size < 0 ? FileDescriptor() : FileOf(header);
    const bool whole = (header.msg_flags & (MSG_TRUNC | MSG_CTRUNC)) == 0;
    if (size != static_cast<ssize_t>(message.size()) || !whole) return Received::kClosed;
    *file = std::move(came);
    return Received::kMessage;
}

}  // namespace kirto
