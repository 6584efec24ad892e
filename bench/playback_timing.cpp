// kirto_playback_timing WIDTH HEIGHT PAUSE SECONDS [colors]
// Plays an animation of its own in the player and notes, by a monotonic clock, when each frame is
// painted: how late that is, and which frames are left out. PAUSE: hundredths of a second; colors:
// frames with more colors than a palette has.
#include <QApplication>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <sys/resource.h>
#include <vector>

#include "document/animation_document.h"
#include "ui/player/player_view.h"

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int32 kFrames = 100;
constexpr QSize kWindow(1280, 900);

// Bars that move, with grain that no two frames share.
std::shared_ptr<const kirto::Picture> PictureOf(int32 width, int32 height, int32 step,
                                                bool many_colors) {
    auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(width, height), B_RGB32);
    uint32 noise = static_cast<uint32>(step) + 1;
    for (int32 y = 0; y < height; ++y) {
        uint8* pixel = static_cast<uint8*>(bitmap->Bits()) +
                       static_cast<size_t>(y) * static_cast<size_t>(bitmap->BytesPerRow());
        for (int32 x = 0; x < width; ++x, pixel += 4) {
            noise = noise * 1664525 + 1013904223;
            const uint32 grain = noise >> (many_colors ? 26 : 30);
            pixel[0] = static_cast<uint8>(static_cast<uint32>((x + 13 * step) / 32 * 8) + grain);
            pixel[1] = static_cast<uint8>(y / 200 * 40);
            pixel[2] = static_cast<uint8>(many_colors ? (noise >> 12) & 63 : 30);
            pixel[3] = 255;
        }
    }
    return kirto::Picture::Of(std::move(bitmap));
}

void Fill(AnimationDocument& document, int32 width, int32 height, double pause, bool many_colors) {
    kirto::Animation animation;
    animation.width = width;
    animation.height = height;
    animation.use_pause = true;
    animation.pause_length = pause;
    for (int32 i = 0; i < kFrames; ++i) {
        Frame frame("frame", width, height);
        frame.bitmap = PictureOf(width, height, i, many_colors);
        InsertFrame(animation, i, std::make_shared<const Frame>(frame));
    }
    document.Commit(std::move(animation));
}

// When frames were painted, counted from the start of playing.
class Record {
  public:
    Record(kirto::PlayerView& view, double pause) : view_(view), pause_(pause * 10) {
        view.Pane().WhenPainted([this] { Note(); });
    }

    void Start() {
        running_ = true;
        view_.Playback().SetNow([this] {
            const auto now = Clock::now();
            if (start_ == Clock::time_point()) start_ = now;
            return now.time_since_epoch();
        });
        view_.Playback().Play();
    }

    void Report() const {
        std::map<int, int> histogram;  // of whole milliseconds
        double latest = 0;
        for (const double late : late_) {
            ++histogram[static_cast<int>(late)];
            latest = std::max(latest, late);
        }
        for (const auto& [milliseconds, count] : histogram)
            std::printf("%3d to %3d ms late: %6d\n", milliseconds, milliseconds + 1, count);
        std::printf("%zu frames painted, %d left out, %.2f ms late at most\n", late_.size(),
                    left_out_, latest);
        rusage used{};
        getrusage(RUSAGE_SELF, &used);
        std::printf("%ld.%02ld s of processor time, with the making of the frames\n",
                    used.ru_utime.tv_sec, used.ru_utime.tv_usec / 10000);
    }

  private:
    void Note() {
        const int32 frame = view_.PaintedFrame();
        if (!running_ || frame == frame_) return;
        const double now = Milliseconds(Clock::now() - start_).count();
        const int32 step = (frame - frame_ + kFrames) % kFrames;
        if (frame_ >= 0) {
            turn_ += step;
            left_out_ += step - 1;
            late_.push_back(now - turn_ * pause_);
        }
        frame_ = frame;
    }

    kirto::PlayerView& view_;
    const double pause_;  // milliseconds
    Clock::time_point start_;
    bool running_ = false;
    int32 frame_ = -1;
    double turn_ = 0;  // of frames since the start
    int left_out_ = 0;
    std::vector<double> late_;
};

}  // namespace

int main(int count, char** arguments) {
    const QApplication application(count, arguments);
    if (count < 5) {
        std::fprintf(stderr, "kirto_playback_timing WIDTH HEIGHT PAUSE SECONDS [colors]\n");
        return EXIT_FAILURE;
    }
    const double pause = std::atof(arguments[3]);
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document(prefs);
    Fill(document, std::atoi(arguments[1]), std::atoi(arguments[2]), pause, count > 5);
    kirto::ShownDocument shown;
    shown.Take(document);
    kirto::PlayerView view(shown, BMessenger());
    view.resize(kWindow);
    view.show();
    view.UpdateDisplay();
    view.Playback().SetLoop(kirto::Player::Loop::kAlways);
    Record record(view, pause);
    constexpr int kSettle = 2000;
    QTimer::singleShot(kSettle, &view, [&record] { record.Start(); });
    QTimer::singleShot(kSettle + 1000 * std::atoi(arguments[4]), &view,
                       [] { QApplication::quit(); });
    const int result = QApplication::exec();
    record.Report();
    return result;
}
