// kirto_time_to_window [--scroll STEPS] PROGRAM [ARGUMENT...]: starts the program and prints how
// many milliseconds passed until its window had been painted. With --scroll it then waits until the
// window stays as it is, turns the wheel of the mouse right of its middle by so many notches, and
// prints for each, a line each, how many milliseconds passed until the window had changed. Needs an
// X server with a black root and nothing else on it; no window manager. The program is ended then.
#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "x_screen.h"

namespace kirto::bench {

namespace {

using Clock = std::chrono::steady_clock;
using Pixels = std::vector<uint8_t>;

constexpr auto kDeadline = std::chrono::seconds(60);
constexpr auto kInterval = std::chrono::microseconds(500);
// Without a change for so long, a file is read to its end, and a step of scrolling is done.
constexpr auto kDone = std::chrono::seconds(2);
constexpr auto kQuiet = std::chrono::milliseconds(50);

// True when there is anything but black, whatever the fourth byte of a pixel is.
bool IsPainted(const Pixels& pixels) {
    for (size_t i = 0; i < pixels.size(); ++i) {
        if (i % 4 != 3 && pixels[i] != 0) return true;
    }
    return false;
}

double MillisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// Looks at the area until the pixels please. False when they never do.
template <typename Pleases>
bool WaitFor(const XScreen& screen, const XScreen::Area& area, Pleases pleases) {
    const Clock::time_point start = Clock::now();
    while (!pleases(screen.Pixels(area))) {
        if (Clock::now() - start > kDeadline) return false;
        std::this_thread::sleep_for(kInterval);
    }
    return true;
}

bool WaitUntilQuiet(const XScreen& screen, const XScreen::Area& area, Clock::duration quiet) {
    Pixels last;
    Clock::time_point changed = Clock::now();
    return WaitFor(screen, area, [&](const Pixels& pixels) {
        if (pixels != last) changed = Clock::now();
        last = pixels;
        return Clock::now() - changed > quiet;
    });
}

bool Scroll(XScreen& screen, int steps) {
    if (steps == 0) return true;
    if (!WaitUntilQuiet(screen, screen.Whole(), kDone)) return false;
    // Right of the middle, where the editor's thumbnails are; narrow, so that looking takes no
    // time.
    XScreen::Area area = screen.Middle(16, 200);
    area.left = static_cast<int16_t>(area.left + screen.Whole().width / 8);
    screen.PointAt(area);
    for (int i = 0; i < steps; ++i) {
        if (!WaitUntilQuiet(screen, area, kQuiet)) return false;
        const Pixels before = screen.Pixels(area);
        const Clock::time_point start = Clock::now();
        screen.TurnWheel(true);
        if (!WaitFor(screen, area, [&](const Pixels& pixels) { return pixels != before; })) {
            return false;
        }
        std::printf("%.1f\n", MillisecondsSince(start));
    }
    return true;
}

bool Watch(XScreen& screen, Clock::time_point start, int steps) {
    // A window in the middle of the screen covers it.
    if (!WaitFor(screen, screen.Middle(8, 8), IsPainted)) return false;
    std::printf("%.1f\n", MillisecondsSince(start));
    return Scroll(screen, steps);
}

int Run(char** command, int steps) {
    XScreen screen;
    if (!screen.Connected()) {
        std::fprintf(stderr, "kirto_time_to_window: there is no X server\n");
        return 1;
    }
    const Clock::time_point start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execvp(command[0], command);
        _exit(127);
    }
    const bool done = Watch(screen, start, steps);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    return done ? 0 : 1;
}

}  // namespace

}  // namespace kirto::bench

int main(int argc, char** argv) {
    const bool scrolls = argc > 2 && std::strcmp(argv[1], "--scroll") == 0;
    char** command = argv + (scrolls ? 3 : 1);
    if (command >= argv + argc) {
        std::fprintf(stderr,
                     "usage: kirto_time_to_window [--scroll STEPS] PROGRAM [ARGUMENT...]\n");
        return 2;
    }
    return kirto::bench::Run(command, scrolls ? std::atoi(argv[2]) : 0);
}
