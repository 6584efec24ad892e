// A disk on which nothing has room.
#pragma once

#include <csignal>
#include <sys/resource.h>

namespace kirto::test {

// Lets no file of the process grow while it lives: every write fails.
class FullDisk {
  public:
    FullDisk() : previous_handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &previous_);
        const rlimit nothing{0, previous_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &nothing);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &previous_);
        std::signal(SIGXFSZ, previous_handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit previous_{};
    void (*previous_handler_)(int);
};

}  // namespace kirto::test
