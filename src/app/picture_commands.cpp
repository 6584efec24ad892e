#include "app/picture_commands.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>

#include "base/core_text.h"
#include "document/command_codes.h"
#include "effects/pictures/color_edit.h"
#include "effects/pictures/color_maps.h"
#include "effects/pictures/crop_edit.h"
#include "effects/pictures/edit_pictures.h"
#include "effects/pictures/fit_edit.h"
#include "effects/pictures/overlay_edit.h"
#include "effects/pictures/resize_edit.h"
#include "effects/pictures/trim_area.h"
#include "effects/pictures/turn_edit.h"
#include "kit/alert.h"
#include "kit/picture_files.h"

namespace kirto {

namespace {

using EditPointer = std::unique_ptr<const PictureEdit>;

// A command that is being carried out.
struct Request {
    AnimationDocument& document;
    const std::shared_ptr<const Animation> before;
    const BMessage& message;
    BTranslatorRoster& roster;
    std::string last_word;  // why there is no edit, where there is something to say

    // The field's number where it is within these bounds.
    std::optional<int32> Number(const char* field, int32 first, int32 last) const {
        int32 number = 0;
        if (message.FindInt32(field, &number) != B_OK) return std::nullopt;
        if (number < first || number > last) return std::nullopt;
        return number;
    }
    std::optional<int32> Side(const char* field) const {
        return Number(field, 1, kMostPixelsOfASide);
    }
    std::optional<int32> Coordinate(const char* field) const {
        return Number(field, -kMostPixelsOfASide, kMostPixelsOfASide);
    }
    std::optional<ScaleFilter> Filter() const {
        const auto number = Number("filter", 0, static_cast<int32>(ScaleFilter::kLanczos));
        if (!number) return std::nullopt;
        return static_cast<ScaleFilter>(*number);
    }
    bool HasCanvas() const { return before->width > 0 && before->height > 0; }
};

EditPointer Resize(Request& request) {
    const auto width = request.Side("width");
    const auto height = request.Side("height");
    const auto filter = request.Filter();
    if (!width || !height || !filter || !request.HasCanvas()) return nullptr;
    return std::make_unique<ResizeEdit>(*request.before, *width, *height, *filter);
}

EditPointer Trim(Request& request, bool to_changes) {
    Work& work = request.document.work;
    const PlaneRect area =
        to_changes ? ChangedArea(*request.before, work) : VisibleArea(*request.before, work);
    if (request.document.StopRequested()) {
        request.last_word = CoreText::tr("canceled, nothing changed");
    } else if (area.Empty()) {
        request.last_word = to_changes ? CoreText::tr("no frame shows anything else than another")
                                       : CoreText::tr("all frames are transparent everywhere");
    } else {
        return std::make_unique<CropEdit>(area);
    }
    return nullptr;
}

EditPointer Crop(Request& request) {
    if (const auto trim = request.Number("trim", 0, 1)) return Trim(request, *trim == 1);
    const auto left = request.Coordinate("left");
    const auto top = request.Coordinate("top");
    const auto width = request.Side("width");
    const auto height = request.Side("height");
    if (!left || !top || !width || !height) return nullptr;
    return std::make_unique<CropEdit>(PlaneRect{*left, *top, *width, *height});
}

EditPointer SetCanvas(Request& request) {
    const auto width = request.Side("width");
    const auto height = request.Side("height");
    const auto anchor = request.Number("anchor", 0, kAnchors - 1);
    if (!width || !height || !anchor) return nullptr;
    return std::make_unique<CropEdit>(AnchoredCanvas(*request.before, *width, *height, *anchor));
}

EditPointer RotateCanvas(Request& request) {
    static constexpr Turn kQuarters[] = {Turn::kRight, Turn::kHalf, Turn::kLeft};
    const auto quarters = request.Number("quarters", 1, 3);
    if (!quarters) return nullptr;
    return std::make_unique<TurnEdit>(kQuarters[*quarters - 1]);
}

EditPointer Flip(Request& request) {
    bool across = false;
    if (request.message.FindBool("across", &across) != B_OK) return nullptr;
    return std::make_unique<TurnEdit>(across ? Turn::kFlipAcross : Turn::kFlipDown);
}

EditPointer FitToCanvas(Request& request) {
    const auto fit = request.Number("fit", 0, static_cast<int32>(Fit::kCrop));
    const auto filter = request.Filter();
    if (!fit || !filter) return nullptr;
    return std::make_unique<FitEdit>(static_cast<Fit>(*fit), *filter);
}

EditPointer Adjust(Request& request) {
    ColorAdjustment adjustment;
    request.message.FindInt32("brightness", &adjustment.brightness);
    request.message.FindInt32("contrast", &adjustment.contrast);
    request.message.FindInt32("saturation", &adjustment.saturation);
    request.message.FindBool("greyscale", &adjustment.greyscale);
    if (!adjustment.IsSound()) return nullptr;
    return std::make_unique<ColorEdit>(std::make_unique<AdjustmentMap>(adjustment),
                                       CoreText::Later("Status: adjusting frame %1 of %2..."));
}

EditPointer SetOpacity(Request& request) {
    const auto percent = request.Number("percent", 0, 100);
    if (!percent) return nullptr;
    return std::make_unique<ColorEdit>(std::make_unique<OpacityMap>(*percent),
                                       CoreText::Later("Status: fading frame %1 of %2..."));
}

EditPointer MakeTransparent(Request& request) {
    int32 packed = 0;
    const auto tolerance = request.Number("tolerance", 0, 255);
    if (!tolerance || request.message.FindInt32("color", &packed) != B_OK) return nullptr;
    const uint32 color = static_cast<uint32>(packed);
    const rgb_color wanted = {static_cast<uint8>(color >> 24), static_cast<uint8>(color >> 16),
                              static_cast<uint8>(color >> 8), 255};
    return std::make_unique<ColorEdit>(std::make_unique<TransparencyMap>(wanted, *tolerance),
                                       CoreText::Later("Status: changing frame %1 of %2..."));
}

// The file's picture, or null: because the work was stopped, or after telling the user why.
std::shared_ptr<const Picture> ReadOverlay(Request& request, const entry_ref& ref) {
    AnimationDocument& document = request.document;
    std::shared_ptr<BBitmap> bitmap;
    const status_t status =
        ReadPicture(ref.path, request.roster, document.pixel_budget, &document.work, &bitmap);
    if (status == B_CANCELED) {
        request.last_word = CoreText::tr("canceled, nothing changed");
    } else if (status == B_NO_MEMORY) {
        WarnOutOfMemory();
    } else if (status != B_OK || !Is32Bit(bitmap->ColorSpace())) {
        TellQuietly(CoreText::With(
            CoreText::tr("This file can't be drawn because this file type is unsupported: %1"),
            {ref.Leaf()}));
    } else {
        return Picture::Of(std::move(bitmap), document.pixel_budget);
    }
    return nullptr;
}

EditPointer Overlay(Request& request) {
    const auto x = request.Coordinate("x");
    const auto y = request.Coordinate("y");
    const auto percent = request.Number("percent", 0, 100);
    entry_ref ref;
    if (!x || !y || !percent || request.message.FindRef("refs", &ref) != B_OK) return nullptr;
    std::shared_ptr<const Picture> picture = ReadOverlay(request, ref);
    if (!picture) return nullptr;
    OverlayFading fading;
    fading.percent = *percent;
    return std::make_unique<OverlayEdit>(std::move(picture), *x, *y, fading, *request.before,
                                         request.before->Selection());
}

constexpr int32 kMostFadingFrames = 1 << 20;

EditPointer DrawText(Request& request) {
    const auto x = request.Coordinate("x");
    const auto y = request.Coordinate("y");
    std::string_view bytes;
    if (!x || !y || request.message.FindData("image", B_RAW_TYPE, 0, &bytes) != B_OK)
        return nullptr;
    const std::unique_ptr<BFile> file = BFile::OnMemory({bytes.begin(), bytes.end()});
    const std::shared_ptr<PixelBudget>& budget = request.document.pixel_budget;
    std::shared_ptr<BBitmap> bitmap;
    const status_t status = request.roster.Translate(*file, budget, &bitmap);
    if (status == B_NO_MEMORY) WarnOutOfMemory();
    if (status != B_OK || !Is32Bit(bitmap->ColorSpace())) return nullptr;
    OverlayFading fading;
    fading.in = request.Number("fade_in", 0, kMostFadingFrames).value_or(0);
    fading.out = request.Number("fade_out", 0, kMostFadingFrames).value_or(0);
    return std::make_unique<OverlayEdit>(Picture::Of(std::move(bitmap), budget), *x, *y, fading,
                                         *request.before, request.before->Selection());
}

struct PictureRow {
    uint32 code;
    const char* name;
    bool of_all_frames;  // else of the selected ones
    // Null where there is nothing to do.
    EditPointer (*make)(Request& request);
};

constexpr PictureRow kPictureRows[] = {
    {kResizeAnimation, CoreText::Later("Resize Animation"), true, Resize},
    {kCropAnimation, CoreText::Later("Crop"), true, Crop},
    {kSetCanvasSize, CoreText::Later("Canvas Size"), true, SetCanvas},
    {kRotateAnimation, CoreText::Later("Rotate"), true, RotateCanvas},
    {kFlipAnimation, CoreText::Later("Flip"), true, Flip},
    {kFitFrames, CoreText::Later("Fit Frames"), false, FitToCanvas},
    {kAdjustColors, CoreText::Later("Adjust Colors"), false, Adjust},
    {kSetOpacity, CoreText::Later("Opacity"), false, SetOpacity},
    {kOverlayImage, CoreText::Later("Overlay Image"), false, Overlay},
    {kDrawText, CoreText::Later("Text"), false, DrawText},
    {kMakeTransparent, CoreText::Later("Make Transparent"), false, MakeTransparent},
};

const PictureRow* PictureRowOf(uint32 code) {
    const auto* found = std::find_if(std::begin(kPictureRows), std::end(kPictureRows),
                                     [code](const PictureRow& row) { return row.code == code; });
    return found == std::end(kPictureRows) ? nullptr : found;
}

}  // namespace

const char* PictureEditName(uint32 code) {
    const PictureRow* row = PictureRowOf(code);
    return row ? row->name : nullptr;
}

std::string ApplyPictureEdit(AnimationDocument& document, const BMessage& message,
                             BTranslatorRoster& roster) {
    const PictureRow* row = PictureRowOf(message.what);
    if (!row) return {};
    Request request{document, document.Current(), message, roster, {}};
    const EditPointer edit = row->make(request);
    if (!edit) return request.last_word;
    const FrameSet frames = row->of_all_frames ? FrameSet::AllOf(request.before->frames.Size())
                                               : request.before->Selection();
    const EditEnd end = EditPictures(document, *edit, frames);
    return end == EditEnd::kStopped ? CoreText::tr("canceled, nothing changed") : "";
}

}  // namespace kirto
