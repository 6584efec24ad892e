// kirto_time_to_window PROGRAM [ARGUMENT...]: starts the program and prints how many milliseconds
// passed until its window had been painted. Needs an X server with a black root and nothing else on
// it; no window manager. The program is ended then.
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr auto kDeadline = std::chrono::seconds(60);
constexpr auto kInterval = std::chrono::microseconds(500);
// Of the screen, pixels; a window in its middle covers it.
constexpr uint16_t kProbeSize = 8;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

// True when the middle of the screen is no longer black.
bool MiddleIsPainted(xcb_connection_t* connection, const xcb_screen_t& screen) {
    const auto x = static_cast<int16_t>(screen.width_in_pixels / 2);
    const auto y = static_cast<int16_t>(screen.height_in_pixels / 2);
    const auto cookie = xcb_get_image(connection, XCB_IMAGE_FORMAT_Z_PIXMAP, screen.root, x, y,
                                      kProbeSize, kProbeSize, ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, Free> image(
        xcb_get_image_reply(connection, cookie, nullptr));
    if (!image) return false;
    const uint8_t* bytes = xcb_get_image_data(image.get());
    const int length = xcb_get_image_data_length(image.get());
    for (int i = 0; i < length; i += 4) {
        if (bytes[i] != 0 || bytes[i + 1] != 0 || bytes[i + 2] != 0) return true;
    }
    return false;
}

bool WaitForPaint(xcb_connection_t* connection, Clock::time_point start) {
    const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    while (!MiddleIsPainted(connection, screen)) {
        if (Clock::now() - start > kDeadline) return false;
        std::this_thread::sleep_for(kInterval);
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: kirto_time_to_window PROGRAM [ARGUMENT...]\n");
        return 2;
    }
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0) {
        std::fprintf(stderr, "kirto_time_to_window: there is no X server\n");
        return 1;
    }
    const Clock::time_point start = Clock::now();
    const pid_t child = fork();
    if (child == 0) {
        execvp(argv[1], argv + 1);
        _exit(127);
    }
    const bool painted = WaitForPaint(connection, start);
    const std::chrono::duration<double, std::milli> passed = Clock::now() - start;
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    xcb_disconnect(connection);
    if (!painted) return 1;
    std::printf("%.1f\n", passed.count());
    return 0;
}
