// Changes of a document.
#include "color/palette.h"
#include "effects/fade.h"
#include "effects/pictures/edit_pictures.h"
#include "effects/pictures/resize_edit.h"
#include "jobs.h"
#include "pixels.h"

namespace kirto::bench {

namespace {

constexpr int32 kWidth = 1920;
constexpr int32 kHeight = 1080;

// A fade between two photographs.
bool FadeToNext(const Arguments& arguments, Measurement& measurement) {
    const int32 count = std::stoi(arguments[0]);
    OwnDocument own;
    for (const int32 step : {0, 200})
        own.document.InsertFrameAsCurrent(own.document.FrameCount(),
                                          PaintedFrame(PaintPhoto, kWidth, kHeight, step));
    own.document.Select(0);
    int32 names = 0;
    const bool done = measurement.Run(
        [&] { return Fade(own.document, FadeMode::kToNext, count, rgb_color{}, &names); });
    measurement.SetFrames(own.document.FrameCount());
    return done;
}

// Photographs become two thirds as wide and high.
bool Resize(const Arguments& arguments, Measurement& measurement) {
    const int32 count = std::stoi(arguments[0]);
    OwnDocument own;
    for (int32 step = 0; step < count; ++step)
        own.document.InsertFrameAsCurrent(step, PaintedFrame(PaintPhoto, kWidth, kHeight, step));
    const auto before = own.document.Current();
    const ResizeEdit edit(*before, kWidth * 2 / 3, kHeight * 2 / 3, ScaleFilter::kLanczos);
    const bool done = measurement.Run([&] {
        own.document.Commit(*before);
        return EditPictures(own.document, edit, FrameSet::AllOf(count)) == EditEnd::kDone;
    });
    measurement.SetFrames(own.document.FrameCount());
    return done;
}

// An animation is inserted at the start or the end of a document of ten times as many frames.
bool InsertAnimation(const Arguments& arguments, Measurement& measurement) {
    const std::string& path = arguments[0];
    const std::unique_ptr<BFile> file = FileInMemory(path);
    OwnDocument own;
    for (int32 i = 0; i < 10; ++i) {
        if (!LoadAnimation(path, *file, own.document.FrameCount(), own.document)) return false;
    }
    const int32 position = arguments[1] == "start" ? 0 : own.document.FrameCount();
    const bool done =
        measurement.Run([&] { return LoadAnimation(path, *file, position, own.document); });
    measurement.SetFrames(own.document.FrameCount());
    return done;
}

// A picture of so many colors gets its palette.
bool MakePalette(const Arguments& arguments, Measurement& measurement) {
    const Frame frame = PaintedFrame(PaintColors, kColorsWidth, kHeight, std::stoi(arguments[0]));
    return measurement.Run([&] {
        Palette palette;
        palette.Set(PictureOf(frame));
        return palette.unique_colors > 0;
    });
}

constexpr Job kJobs[] = {
    {"fade", "COUNT", FadeToNext},
    {"insert", "FILE start|end", InsertAnimation},
    {"palette", "COLORS", MakePalette},
    {"resize", "COUNT", Resize},
};

}  // namespace

std::span<const Job> EditingJobs() {
    return kJobs;
}

}  // namespace kirto::bench
