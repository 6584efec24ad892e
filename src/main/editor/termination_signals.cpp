#include "main/editor/termination_signals.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace kirto {

namespace {

// The handler writes the signal's number into this pipe, which the GUI thread watches.
int pipe_ends[2] = {-1, -1};

// What is to be done if the program ends now; null outside an object's life.
const std::function<void()>* action_at_exit = nullptr;

extern "C" void ActAtExit() {
    if (action_at_exit) (*action_at_exit)();
}

extern "C" void TellGuiThread(int signal) {
    const int kept = errno;
    const auto number = static_cast<unsigned char>(signal);
    // A full pipe holds a signal already.
    [[maybe_unused]] const ssize_t ignored = write(pipe_ends[1], &number, 1);
    errno = kept;
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> action) : action_(std::move(action)) {
    action_at_exit = &action_;
    static const int kRegistered = std::atexit(ActAtExit);
    static_cast<void>(kRegistered);
    if (pipe2(pipe_ends, O_CLOEXEC | O_NONBLOCK) != 0) return;
    notifier_ = std::make_unique<QSocketNotifier>(pipe_ends[0], QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { Handle(); });
    struct sigaction told {};
    told.sa_handler = TellGuiThread;
    told.sa_flags = SA_RESTART;
    for (size_t i = 0; i < kSignals.size(); ++i) {
        sigaction(kSignals[i], nullptr, &previous_[i]);
        if (previous_[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &told, nullptr);
    }
}

TerminationSignals::~TerminationSignals() {
    action_at_exit = nullptr;
    if (!notifier_) return;
    for (size_t i = 0; i < kSignals.size(); ++i)
        sigaction(kSignals[i], &previous_[i], nullptr);
    notifier_.reset();
    close(pipe_ends[0]);
    close(pipe_ends[1]);
}

void TerminationSignals::Handle() {
    unsigned char number = 0;
    if (read(pipe_ends[0], &number, 1) != 1) return;
    action_();
    // Whoever waits for the program learns which signal has ended it.
    std::signal(number, SIG_DFL);
    std::raise(number);
}

}  // namespace kirto
