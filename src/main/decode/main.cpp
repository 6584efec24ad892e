// kirto-decode: reads image files for kirto and kirto-cli, which start it with a channel at
// descriptor 3. usage: kirto-decode FORMAT BYTES: of what format all files will be, which may be
// none, and how much memory pictures may take.
#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <charconv>
#include <clocale>
#include <cstring>
#include <malloc.h>
#include <memory>
#include <poll.h>
#include <string>
#include <thread>
#include <unistd.h>

#include "kit/qt/qt_translator_roster.h"
#include "main/decode/decode_service.h"
#include "main/decode/sandbox.h"

namespace {

constexpr int kChannel = 3;
constexpr int kExitWrongUsage = 2;
constexpr int kKeptBytes = 32 << 20;
// What a decoder takes beside the picture and its copies, threads included.
constexpr uint64 kRoom = uint64{512} << 20;

// Drawings have texts, which only an application with fonts can draw. It takes longer to start.
std::unique_ptr<QCoreApplication> MakeApplication(bool draws) {
    static char name[] = "kirto-decode";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static int count = 3;
    static char* arguments[] = {name, option, platform, nullptr};
    kirto::QtTranslatorRoster::RestrictPluginFolders();
    std::unique_ptr<QCoreApplication> application;
    if (draws) {
        application = std::make_unique<QGuiApplication>(count, arguments);
    } else {
        application = std::make_unique<QCoreApplication>(count, arguments);
    }
    kirto::QtTranslatorRoster::RestrictPluginFolders();
    std::setlocale(LC_NUMERIC, "C");
    return application;
}

// Loads what reads the format while files can still be opened.
void LoadPlugin(const char* format) {
    if (*format == '\0') return;
    QBuffer nothing;
    nothing.open(QIODevice::ReadOnly);
    QImageReader reader(&nothing, format);
    reader.setAutoDetectImageFormat(false);
    reader.canRead();
}

// Memory that a picture has taken is used again for the next one, where it is not very much:
// getting it from the system again takes as long as filling it.
void KeepMemory() {
    mallopt(M_MMAP_THRESHOLD, kKeptBytes);
    mallopt(M_TRIM_THRESHOLD, kKeptBytes);
}

// Nobody waits for an answer once the other end is closed, however long a decoder may still take.
void EndWithTheChannel() {
    std::thread([] {
        pollfd channel{kChannel, POLLRDHUP, 0};
        while (poll(&channel, 1, -1) < 0 && errno == EINTR) {
        }
        _exit(0);
    }).detach();
}

}  // namespace

int main(int argc, char** argv) {
    uint64 memory = 0;
    if (argc != 3) return kExitWrongUsage;
    const char* end = argv[2] + std::strlen(argv[2]);
    const auto parsed = std::from_chars(argv[2], end, memory);
    if (parsed.ec != std::errc() || parsed.ptr != end) return kExitWrongUsage;
    const bool draws = std::string(argv[1]) == "svg";

    EndWithTheChannel();
    [[maybe_unused]] const auto application = MakeApplication(draws);
    LoadPlugin(argv[1]);
    // Drawings have pictures, too.
    for (const char* format : {"jpeg", "gif", "webp"}) {
        if (draws) LoadPlugin(format);
    }
    kirto::QtTranslatorRoster roster;
    KeepMemory();
    kirto::LimitResources(4 * memory + kRoom);
    kirto::ForbidSystemCalls(draws);

    kirto::DecodeChannel channel{kirto::FileDescriptor(kChannel)};
    kirto::DecodeService(channel, roster).Run();
    // What the libraries would do at their end is of no use to anybody.
    _exit(0);
}
