#include "app/sheet_save.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <utility>

#include "animation/pauses.h"
#include "app/save_animation.h"
#include "app/sequence_save.h"
#include "base/core_text.h"
#include "effects/pictures/cut_plan.h"
#include "effects/pictures/pixel_order.h"
#include "kit/alert.h"
#include "kit/picture_files.h"

namespace kirto {

namespace {

// Cells side by side, all of one size.
int64 SideOf(int64 cells, int64 size, const SheetSave::Layout& layout) {
    const int64 side = cells * size + (cells - 1) * layout.padding;
    if (!layout.power_of_two) return side;
    return static_cast<int64>(std::bit_ceil(static_cast<uint64>(side)));
}

PlaneRect OnCanvas(const Frame& frame, const Animation& animation) {
    return Common(RectOf(frame), CanvasOf(animation));
}

}  // namespace

SheetSave::SheetSave(AnimationDocument& document, BTranslatorRoster& roster, Encoding encoding,
                     const FrameSet& frames, const Layout& layout)
    : document_(document),
      roster_(roster),
      encoding_(std::move(encoding)),
      animation_(document.Current()) {
    Arrange(frames, layout);
}

void SheetSave::Arrange(const FrameSet& frames, const Layout& layout) {
    int64 cell_width = 0;
    int64 cell_height = 0;
    for (const int32 position : frames.Positions()) {
        const FramePointer frame = animation_->frames.At(position);
        if (!frame->bitmap || !frame->bitmap->HasRows()) continue;
        frames_.push_back(frame);
        sheet_.frames.push_back(DescriptionOf(*frame));
        cell_width = std::max<int64>(cell_width, sheet_.frames.back().width);
        cell_height = std::max<int64>(cell_height, sheet_.frames.back().height);
    }
    const auto count = static_cast<int64>(frames_.size());
    if (count == 0) return;
    const auto square = static_cast<int64>(std::ceil(std::sqrt(static_cast<double>(count))));
    const int64 columns = std::min<int64>(layout.columns > 0 ? layout.columns : square, count);
    width_ = SideOf(columns, cell_width, layout);
    height_ = SideOf((count + columns - 1) / columns, cell_height, layout);
    if (std::max(width_, height_) > kMostPixelsOfASide) return;
    for (int64 i = 0; i < count; ++i) {
        SheetFrame& frame = sheet_.frames[static_cast<size_t>(i)];
        frame.left = static_cast<int32>(i % columns * (cell_width + layout.padding));
        frame.top = static_cast<int32>(i / columns * (cell_height + layout.padding));
    }
    sheet_.width = static_cast<int32>(width_);
    sheet_.height = static_cast<int32>(height_);
}

SheetFrame SheetSave::DescriptionOf(const Frame& frame) const {
    const PlaneRect rect = OnCanvas(frame, *animation_);
    SheetFrame described;
    described.name = frame.name;
    described.width = std::max(rect.width, 1);
    described.height = std::max(rect.height, 1);
    described.x_offset = rect.left;
    described.y_offset = rect.top;
    described.whole_width = std::max(animation_->width, described.width);
    described.whole_height = std::max(animation_->height, described.height);
    if (frame.use_pause || animation_->use_pause) {
        described.milliseconds = std::max(animation_->PauseOf(frame), 0.0) *
                                 kMillisecondsPerSecond /
                                 PauseUnitsPerSecond(document_.prefs.global_pauseinseconds);
    }
    return described;
}

bool SheetSave::DrawFrame(size_t i, BBitmap& sheet) const {
    const Frame& frame = *frames_[i];
    const SheetFrame& place = sheet_.frames[i];
    const PlaneRect rect = OnCanvas(frame, *animation_);
    if (rect.Empty()) return true;
    const bool big_endian = IsBigEndian(frame.bitmap->ColorSpace());
    std::vector<uint32> row(static_cast<size_t>(frame.bitmap->Width()));
    for (int32 y = 0; y < rect.height; ++y) {
        if (document_.StopRequested()) return false;
        frame.bitmap->ReadRow(rect.top - frame.y_offset + y, reinterpret_cast<uint8*>(row.data()));
        uint8* target = sheet.Row(place.top + y) + static_cast<size_t>(place.left) * 4;
        for (int32 x = 0; x < rect.width; ++x, target += 4) {
            const auto source = static_cast<size_t>(rect.left - frame.x_offset + x);
            const uint32 pixel = PixelOf(ColorOf(row[source], big_endian), false);
            std::memcpy(target, &pixel, sizeof(pixel));
        }
    }
    return true;
}

std::shared_ptr<BBitmap> SheetSave::Draw() const {
    auto sheet = std::make_shared<BBitmap>(BRect::OfSize(sheet_.width, sheet_.height), B_RGBA32,
                                           document_.pixel_budget);
    if (sheet->InitCheck() != B_OK) {
        WarnOutOfMemory();
        return nullptr;
    }
    for (size_t i = 0; i < frames_.size(); ++i) {
        document_.work.Report(static_cast<int64>(i), static_cast<int64>(frames_.size()));
        if (!DrawFrame(i, *sheet)) return nullptr;
    }
    return sheet;
}

status_t SheetSave::Save(const std::string& path) {
    if (frames_.empty() || std::max(width_, height_) > kMostPixelsOfASide) {
        Warn(frames_.empty()
                 ? CoreText::Later("There is no frame to save.")
                 : CoreText::Later("The sheet can't be saved because it would be too large."));
        return B_BAD_VALUE;
    }
    const std::shared_ptr<BBitmap> picture = Draw();
    if (!picture) return document_.StopRequested() ? B_CANCELED : B_NO_MEMORY;
    const std::shared_ptr<BFile> file = BFile::CreateReplacing(path);
    if (file->InitCheck() != B_OK) {
        Warn(kFileNotCreatedText);
        return B_IO_ERROR;
    }
    const status_t status = WritePicture(picture, roster_, encoding_.translator, encoding_.format,
                                         encoding_.settings, file, document_.work);
    if (status == B_CANCELED) return status;
    if (status != B_OK && file->WriteStatus() == B_OK) {
        Warn(kInvalidTranslatorText);
        return status;
    }
    if (file->Commit() != B_OK) {
        Warn(kFileNotCreatedText);
        return B_IO_ERROR;
    }
    return WriteText(path);
}

status_t SheetSave::WriteText(const std::string& path) const {
    const std::filesystem::path picture(path);
    SheetDescription description = sheet_;
    description.image = picture.filename().string();
    const std::string text = SheetDescriptionText(description);
    const auto file =
        BFile::CreateReplacing(std::filesystem::path(picture).replace_extension(".json").string());
    if (file->InitCheck() == B_OK) file->Write(text.data(), text.size());
    if (file->InitCheck() == B_OK && file->Commit() == B_OK) return B_OK;
    Warn(kFileNotCreatedText);
    return B_IO_ERROR;
}

}  // namespace kirto
