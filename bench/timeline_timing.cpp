// kirto_timeline_timing FRAMES
// Scrolls through a timeline of so many frames, zooms it and lets the playhead run, and says how
// long the GUI thread takes for each picture: the median, 95 of 100, and the longest.
#include <QApplication>
#include <QScrollBar>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <vector>

#include "document/animation_document.h"
#include "ui/timeline/timeline_view.h"

namespace {

constexpr int32 kWidth = 640;
constexpr int32 kHeight = 480;
constexpr int kPictures = 400;

void Fill(AnimationDocument& document, int32 frames) {
    kirto::Animation animation;
    animation.width = kWidth;
    animation.height = kHeight;
    for (int32 i = 0; i < frames; ++i) {
        Frame frame("frame", kWidth, kHeight);
        frame.use_pause = true;
        frame.pause_length = 2 + i % 9;
        const auto color = 0xFF000000 | static_cast<uint32>(i * 77777);
        frame.bitmap =
            kirto::Picture::Solid(color, kWidth, kHeight, B_RGB32, document.pixel_budget);
        InsertFrame(animation, i, std::make_shared<const Frame>(frame));
    }
    document.Commit(std::move(animation));
}

double ThreadMilliseconds() {
    timespec used{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) * 1e3 + static_cast<double>(used.tv_nsec) / 1e6;
}

void Measure(const char* name, kirto::TimelineView& view, const std::function<void(int)>& change) {
    std::vector<double> milliseconds;
    std::vector<double> worked;
    for (int i = 0; i < kPictures; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        const double before = ThreadMilliseconds();
        change(i);
        view.viewport()->repaint();
        milliseconds.push_back(
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
                .count());
        worked.push_back(ThreadMilliseconds() - before);
        QApplication::processEvents();
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    std::sort(worked.begin(), worked.end());
    const auto print = [](const char* of, const std::vector<double>& times) {
        std::printf("%-20s median %6.2f ms, 95 %% within %6.2f ms, at most %6.2f ms\n", of,
                    times[kPictures / 2], times[kPictures * 95 / 100], times.back());
    };
    print(name, milliseconds);
    print("  of the processor", worked);
}

}  // namespace

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    const int32 frames = count > 1 ? std::atoi(arguments[1]) : 10000;
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document(prefs);
    Fill(document, frames);
    kirto::ShownDocument shown;
    shown.Take(document);
    kirto::TimelineView view(shown, BMessenger());
    view.resize(1600, view.sizeHint().height());
    view.show();
    QApplication::processEvents();
    QScrollBar& bar = *view.horizontalScrollBar();
    const int far = bar.maximum() / kPictures;
    Measure("pages", view, [&](int i) { bar.setValue(i * far); });
    Measure("scrolling", view, [&](int i) { bar.setValue(i * 17); });
    Measure("zooming", view,
            [&](int i) { view.SetScale(view.Scale() * (i % 40 < 20 ? 1.1 : 1 / 1.1)); });
    Measure("playing", view, [&](int i) { view.SetPlayhead(i % frames); });
    Measure("update", view, [&](int) { view.UpdateDisplay(); });
    return EXIT_SUCCESS;
}
