#include "app/export/read_pictures.h"

#include <algorithm>
#include <utility>

#include "kit/picture_files.h"
#include "picture/picture_builder.h"

namespace kirto {

namespace {

constexpr double kMillisecondsPerHundredth = 10;

// A part of a picture that becomes a frame; all of it on the picture.
struct SheetPart {
    SheetFrame place;
    std::shared_ptr<const BBitmap> picture;
};

std::shared_ptr<const BBitmap> ReadPictureIn(const std::vector<uint8>& bytes,
                                             const PictureReading& reading) {
    std::shared_ptr<BBitmap> picture;
    const std::shared_ptr<BFile> file = BFile::OnMemory(bytes);
    const status_t status =
        reading.roster.TranslateUnless(reading.stopped, *file, reading.budget, &picture);
    const bool usable = status == B_OK && picture && Is32Bit(picture->ColorSpace());
    return usable ? picture : nullptr;
}

FramePointer FrameOfPart(const SheetPart& part, const std::shared_ptr<PixelBudget>& budget) {
    const SheetFrame& place = part.place;
    PictureBuilder builder(place.width, place.height, part.picture->ColorSpace(), budget);
    const size_t offset = static_cast<size_t>(place.left) * 4;
    for (int32 y = 0; y < place.height; ++y) {
        if (!builder.AddRow(part.picture->Row(place.top + y) + offset)) return nullptr;
    }
    Frame frame(place.name, place.width, place.height);
    frame.bitmap = builder.Take();
    if (!frame.bitmap) return nullptr;
    frame.x_offset = place.x_offset;
    frame.y_offset = place.y_offset;
    frame.use_pause = true;
    frame.pause_length = place.milliseconds.value_or(0) / kMillisecondsPerHundredth;
    return std::make_shared<const Frame>(std::move(frame));
}

class FramesRead {
  public:
    explicit FramesRead(const PictureReading& reading) : reading_(reading) {}

    bool Add(const SheetPart& part) {
        const BBitmap& picture = *part.picture;
        if (reading_.stopped() || !part.place.LiesOn(picture.Width(), picture.Height()))
            return false;
        FramePointer frame = FrameOfPart(part, reading_.budget);
        if (!frame) return false;
        read_.width = std::max(read_.width, part.place.whole_width);
        read_.height = std::max(read_.height, part.place.whole_height);
        read_.frames.Insert(read_.frames.Size(), std::move(frame));
        return true;
    }
    std::shared_ptr<const Animation> Take() {
        if (read_.frames.Empty()) return nullptr;
        read_.selected = 0;
        return std::make_shared<const Animation>(std::move(read_));
    }

  private:
    const PictureReading& reading_;
    Animation read_;
};

bool ReadSheetFrames(const ExportFiles& files, const PictureReading& how, FramesRead* reading) {
    const auto picture = ReadPictureIn(files.contents.front(), how);
    if (!picture) return false;
    return std::all_of(files.sheet->frames.begin(), files.sheet->frames.end(),
                       [&](const SheetFrame& frame) {
                           return reading->Add({frame, picture});
                       });
}

bool ReadNumberedImages(const ExportFiles& files, const PictureReading& how, FramesRead* reading) {
    for (size_t i = 0; i < files.contents.size(); ++i) {
        const auto picture = ReadPictureIn(files.contents[i], how);
        if (!picture) return false;
        SheetFrame whole;
        whole.width = whole.whole_width = picture->Width();
        whole.height = whole.whole_height = picture->Height();
        if (i < how.milliseconds.size()) whole.milliseconds = how.milliseconds[i];
        if (!reading->Add({whole, picture})) return false;
    }
    return true;
}

}  // namespace

std::shared_ptr<const Animation> ReadPictures(const ExportFiles& files, const PictureReading& how) {
    if (files.Empty()) return nullptr;
    FramesRead reading(how);
    const bool complete = files.sheet ? ReadSheetFrames(files, how, &reading)
                                      : ReadNumberedImages(files, how, &reading);
    return complete ? reading.Take() : nullptr;
}

}  // namespace kirto
