#pragma once

#include <QSocketNotifier>
#include <array>
#include <csignal>
#include <functional>
#include <memory>

namespace kirto {

// Lets the program end by SIGTERM, SIGHUP or SIGINT as it would without this, but only after an
// action on the GUI thread, which may do what no signal handler may. Signals that the program was
// started to ignore stay ignored. The toolkit ends the program itself when the display is gone; the
// action comes first there, too. At most one object at a time, on the GUI thread.
class TerminationSignals {
  public:
    explicit TerminationSignals(std::function<void()> action);
    // The signals do again what they did before.
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

  private:
    static constexpr std::array kSignals = {SIGTERM, SIGHUP, SIGINT};

    void Handle();

    const std::function<void()> action_;
    std::array<struct sigaction, kSignals.size()> previous_{};
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace kirto
