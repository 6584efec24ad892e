// The GUI thread answers at any time, whatever the application is busy with.
#include <QElapsedTimer>
#include <QListWidget>
#include <ctime>
#include <gtest/gtest.h>

#include "app/kirto.h"
#include "support/environment.h"
#include "support/fake_roster.h"
#include "support/gif_builder.h"
#include "support/test_support.h"
#include "ui/qt_desktop.h"
#include "ui/widget_tools.h"

namespace kirto::test {

namespace {

constexpr int32 kFrames = 3000;
constexpr double kLongestTurn = 100.0;  // milliseconds

double ThreadMilliseconds() {
    timespec time = {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

// A GIF of many frames of 64 x 48 pixels.
std::vector<uint8> LongGif() {
    GifBuilder gif(64, 48, {0x000000, 0xFF0000, 0x00FF00, 0x0000FF});
    for (int32 frame = 0; frame < kFrames; ++frame) {
        GifBuilder::Image image;
        image.width = 64;
        image.height = 48;
        image.min_code_size = 2;
        for (int32 pixel = 0; pixel < 64 * 48; ++pixel)
            image.indices.push_back(static_cast<uint8>((pixel / 16 + frame) % 4));
        gif.Control(0, 10).Add(image);
    }
    return gif.Trailer();
}

// In the mode of the parameter: 0 thumbnails, 1 frame list.
class Responsiveness : public ::testing::TestWithParam<int32> {};

// Time that other programs take from this one does not count: processor time of this thread alone.
TEST_P(Responsiveness, NoTurnOfTheEventLoopTakesLongWhileALongAnimationIsOpened) {
    const TemporaryFolder folder;
    const ScopedEnvironment configuration("XDG_CONFIG_HOME", folder.Path().c_str());
    WriteBytes(folder.File("long.gif"), LongGif());
    Prefs prefs{Prefs::BuiltIn{}};
    prefs.misc_preferredmode = GetParam();
    FakeRoster roster;
    QtDesktop desktop(roster);
    Kirto app(prefs, desktop, roster);
    BMessage refs(B_REFS_RECEIVED);
    refs.AddRef("refs", entry_ref(folder.File("long.gif")));
    app.Run();
    app.PostMessage(refs);

    double longest_turn = 0;
    qint64 longest_gap = 0;
    int32 turns = 0;
    QElapsedTimer deadline;
    deadline.start();
    const auto opened = [&] {
        return desktop.MainWindow()->windowTitle() == "Kirto - long.gif" &&
               desktop.MainWindow()->Shown().FrameCount() == kFrames;
    };
    while (!opened() && deadline.elapsed() < 120'000) {
        QElapsedTimer gap;
        gap.start();
        const double before = ThreadMilliseconds();
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        longest_turn = std::max(longest_turn, ThreadMilliseconds() - before);
        longest_gap = std::max(longest_gap, gap.elapsed());
        ++turns;
    }

    EXPECT_TRUE(opened());
    std::printf("longest turn: %.1f ms of processor time, %lld ms on the clock, %d turns\n",
                longest_turn, static_cast<long long>(longest_gap), turns);
    EXPECT_LE(longest_turn, kLongestTurn);
    desktop.CloseWindows();
}

INSTANTIATE_TEST_SUITE_P(InBothModes, Responsiveness, ::testing::Values(0, 1));

}  // namespace

}  // namespace kirto::test
