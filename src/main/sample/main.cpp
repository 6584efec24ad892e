// kirto-sample: draws a small animation with the program's own classes and saves it, so that there
// is something to open when no file is at hand.
#include <cmath>
#include <cstdio>
#include <memory>

#include "app/save_animation.h"
#include "document/animation_document.h"
#include "document/document_scope.h"
#include "platform/text.h"

namespace {

constexpr int32 kWidth = 160;
constexpr int32 kHeight = 120;
constexpr int32 kFrames = 24;
constexpr double kPi = 3.14159265358979323846;

// A shaded ball that bounces once a turn over a floor under an evening sky.
rgb_color ColorAt(int32 x, int32 y, int32 step) {
    const double phase = 2 * kPi * step / kFrames;
    const double ball_x = kWidth / 2.0 + kWidth * 0.32 * std::sin(phase);
    const double ball_y = 88 - 62 * std::fabs(std::cos(phase));
    const double dx = (x - ball_x) / 20;
    const double dy = (y - ball_y) / 20;
    const double depth = 1 - dx * dx - dy * dy;
    if (depth > 0) {
        const double light = std::fmax(0.15, (-0.5 * dx - 0.6 * dy + 0.62 * std::sqrt(depth)));
        return {static_cast<uint8>(std::fmin(255, 40 + 230 * light)),
                static_cast<uint8>(150 * light), static_cast<uint8>(60 * light), 255};
    }
    if (y >= 108) return {70, 60, 90, 255};
    const uint8 shade = static_cast<uint8>(y / 9 * 9);
    return {static_cast<uint8>(40 + shade), static_cast<uint8>(50 + shade / 2), 120, 255};
}

std::unique_ptr<Frame> DrawFrame(int32 step, AnimationDocument& document) {
    auto frame = std::make_unique<Frame>(kirto::Format("ball%04d", step), kWidth, kHeight, step);
    frame->bitmap =
        std::make_shared<BBitmap>(BRect::OfSize(kWidth, kHeight), B_RGB32, document.pixel_budget);
    if (frame->bitmap->InitCheck() != B_OK) return nullptr;
    for (int32 y = 0; y < kHeight; ++y) {
        uint8* pixel = frame->bitmap->Row(y);
        for (int32 x = 0; x < kWidth; ++x, pixel += 4) {
            const rgb_color color = ColorAt(x, y, step);
            pixel[0] = color.blue;
            pixel[1] = color.green;
            pixel[2] = color.red;
            pixel[3] = color.alpha;
        }
    }
    frame->palette->Set(frame->bitmap.get());
    frame->local_palette = true;
    return frame;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: kirto-sample FILE.gif\n", stderr);
        return 2;
    }
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document(prefs);
    document.global_width = kWidth;
    document.global_height = kHeight;
    document.pause_length_global = 5;
    for (int32 step = 0; step < kFrames; ++step) {
        std::unique_ptr<Frame> frame = DrawFrame(step, document);
        if (!frame || !document.InsertFrame(frame.get())) return 1;
        static_cast<void>(frame.release());
    }
    const kirto::ReaderScope reader(document);
    if (kirto::SaveAnimatedGif(document, argv[1]) != kirto::SaveResult::kSaved) {
        std::fprintf(stderr, "kirto-sample: %s can't be written.\n", argv[1]);
        return 1;
    }
    return 0;
}
