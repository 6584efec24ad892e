// kirto-waits FRAMES FRAMES: opens, edits, fades, saves and undoes so many frames, then scrolls the
// thumbnails and the timeline of so many, and tells how long the windows took to answer meanwhile.
// Runs offscreen unless told otherwise. Fails where something of that has not been done.
#include <QAbstractScrollArea>
#include <QApplication>
#include <QScrollBar>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <utility>
#include <vector>

#include "document/command_codes.h"
#include "driving/driven_editor.h"
#include "driving/gui_watchdog.h"
#include "picture/picture_builder.h"
#include "ui/shell/editor_style.h"

namespace {

constexpr int32 kWidth = 160;
constexpr int32 kHeight = 120;
constexpr int kPictures = 300;
constexpr int kWheelNotch = 120;  // pixels
constexpr int32 kFadeFrames = 50;

double Milliseconds(std::chrono::steady_clock::duration time) {
    return std::chrono::duration<double, std::milli>(time).count();
}

// Each frame has a picture of its own, with a square that wanders.
kirto::Animation MovingSquare(int32 frames) {
    kirto::Animation animation;
    animation.width = kWidth;
    animation.height = kHeight;
    std::vector<uint32> row(kWidth);
    for (int32 i = 0; i < frames; ++i) {
        Frame frame("frame", kWidth, kHeight);
        kirto::PictureBuilder builder(kWidth, kHeight, B_RGB32, nullptr);
        for (int32 y = 0; y < kHeight; ++y) {
            std::fill(row.begin(), row.end(), 0xFF000000 + static_cast<uint32>(y));
            const bool inside = (y + i) % kHeight < kHeight / 4;
            if (inside) std::fill_n(row.begin() + i % (kWidth / 2), kWidth / 4, 0xFFC08040);
            builder.AddRow(reinterpret_cast<const uint8*>(row.data()));
        }
        frame.bitmap = builder.Take();
        InsertFrame(animation, i, std::make_shared<const Frame>(frame));
    }
    return animation;
}

class Waits {
  public:
    void Work(int32 frames);
    void Scroll(int32 frames);
    bool Failed() const { return failed_; }

  private:
    void Do(const char* name, const std::function<void()>& start,
            const std::function<bool()>& reached);
    void ScrollThrough(const char* name, const char* view, Qt::Orientation direction, int step);
    void Show(int32 frames);

    kirto::DrivenEditor editor_;
    kirto::GuiWatchdog watchdog_;
    bool failed_ = false;
};

void Waits::Do(const char* name, const std::function<void()>& start,
               const std::function<bool()>& reached) {
    watchdog_.TakeLongest();
    start();
    const bool done = kirto::DrivenEditor::WaitUntil(reached);
    std::printf("%-24s longest wait %7.1f ms%s\n", name, Milliseconds(watchdog_.TakeLongest()),
                done ? "" : ", not done");
    failed_ = failed_ || !done;
}

void Waits::Show(int32 frames) {
    // Made before the time counts.
    kirto::Animation animation = MovingSquare(frames);
    kirto::DrivenEditor::Settle();
    Do(
        "shown",
        [&] {
            editor_.Application().Commit(std::move(animation));
            editor_.Main()->Messenger().SendMessage(kirto::kUpdateAll);
        },
        [&] { return editor_.Main()->Shown().FrameCount() == frames; });
}

void Waits::Work(int32 frames) {
    const auto shown = [this] { return editor_.Main()->Shown().FrameCount(); };
    const std::string folder = std::filesystem::current_path();
    Show(frames);
    Do(
        "all selected", [&] { editor_.SelectFrames("0-" + std::to_string(frames - 1)); },
        [&] { return editor_.Main()->Shown().Current().several.Count() == frames; });
    Do(
        "reversed", [&] { editor_.Post(kirto::kReverseFrames); },
        [&] { return editor_.Application().CurrentState()->undo_steps > 0; });
    Do(
        "faded",
        [&] {
            BMessage fade(kirto::kFadeToColor);
            fade.AddInt32("count", kFadeFrames);
            fade.AddInt32("color", 0);
            editor_.Post(fade);
        },
        [&] { return shown() == frames + kFadeFrames; });
    Do(
        "saved",
        [&] {
            BMessage save(kirto::kSaveFile);
            save.AddInt64("translator_id", 0);
            save.AddRef("directory", entry_ref(folder));
            save.AddString("name", "waits.gif");
            editor_.Post(save);
        },
        [&] { return !editor_.Main()->Shown().State().modified; });
    Do(
        "undone", [&] { editor_.Post(kirto::kUndo); }, [&] { return shown() == frames; });
    Do(
        "frame list", [&] { editor_.Send(kirto::kToggleMode); },
        [&] { return editor_.Main()->ShowsFrameList(); });
    Do(
        "thumbnails", [&] { editor_.Send(kirto::kToggleMode); },
        [&] { return !editor_.Main()->ShowsFrameList(); });
    Do(
        "begun anew", [&] { editor_.Post(kirto::kResetDocument); },
        [&] { return editor_.Frames() == 0; });
    Do(
        "opened", [&] { editor_.Open(folder + "/waits.gif"); },
        [&] { return shown() == frames + kFadeFrames; });
}

void Waits::Scroll(int32 frames) {
    Show(frames);
    ScrollThrough("thumbnails, a notch", "ScrollView", Qt::Vertical, kWheelNotch);
    ScrollThrough("thumbnails, all", "ScrollView", Qt::Vertical, 0);
    Do(
        "player", [&] { editor_.Send(kirto::kShowPlayer); },
        [&] { return editor_.Main()->findChild<QWidget*>("Timeline")->isVisible(); });
    ScrollThrough("timeline, a notch", "Timeline", Qt::Horizontal, kWheelNotch);
    ScrollThrough("timeline, all", "Timeline", Qt::Horizontal, 0);
}

// step: pixels for each picture; 0: as many as it takes to get to the end.
void Waits::ScrollThrough(const char* name, const char* view, Qt::Orientation direction, int step) {
    auto* const area = editor_.Main()->findChild<QAbstractScrollArea*>(view);
    QScrollBar* const bar =
        direction == Qt::Vertical ? area->verticalScrollBar() : area->horizontalScrollBar();
    if (step == 0) step = std::max(bar->maximum() / kPictures, 1);
    std::vector<double> times;
    watchdog_.TakeLongest();
    for (int i = 0; i < kPictures; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        bar->setValue(i * step);
        QApplication::processEvents();
        times.push_back(Milliseconds(std::chrono::steady_clock::now() - begin));
    }
    std::sort(times.begin(), times.end());
    std::printf("%-24s longest wait %7.1f ms, 95 %% of pictures within %5.1f ms, median %5.1f ms\n",
                name, Milliseconds(watchdog_.TakeLongest()), times[kPictures * 95 / 100],
                times[kPictures / 2]);
    failed_ = failed_ || bar->value() != std::min((kPictures - 1) * step, bar->maximum());
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fprintf(stderr, "usage: kirto-waits FRAMES FRAMES\n");
        return EXIT_FAILURE;
    }
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setStyle(new kirto::EditorStyle(QApplication::style()->name()));
    Waits waits;
    waits.Work(std::atoi(argv[1]));
    waits.Scroll(std::atoi(argv[2]));
    return waits.Failed() ? EXIT_FAILURE : EXIT_SUCCESS;
}
