#include "effects/pictures/overlay_edit.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "effects/pictures/cut_plan.h"
#include "effects/pictures/pixel_order.h"
#include "picture/picture_builder.h"

namespace kirto {

namespace {

constexpr int32 kFull = 255;

PlaneRect RectAt(const Picture& picture, int32 x, int32 y) {
    return {x, y, picture.Width(), picture.Height()};
}

// The upper color over the lower one. strength: of the upper one's alpha, 0 to 255.
ColorBytes Over(ColorBytes upper, int32 strength, ColorBytes lower) {
    const int32 above = upper.alpha * strength;                         // of 255 * 255
    const int32 below = lower.alpha * (kFull * kFull - above) / kFull;  // the same
    const int32 whole = above + below;
    if (whole < kFull / 2 + 1) return {};
    const auto mixed = [&](uint8 a, uint8 b) {
        return static_cast<uint8>((a * above + b * below + whole / 2) / whole);
    };
    return {mixed(upper.blue, lower.blue), mixed(upper.green, lower.green),
            mixed(upper.red, lower.red), static_cast<uint8>((whole + kFull / 2) / kFull)};
}

// Draws a part of the overlay over a picture.
class OverlayPainter {
  public:
    // part: on the picture; overlay_left, overlay_top: where the overlay is on it.
    OverlayPainter(const Picture& overlay, int32 overlay_left, int32 overlay_top,
                   const PlaneRect& part, int32 strength)
        : overlay_(overlay),
          left_(overlay_left),
          top_(overlay_top),
          part_(part),
          strength_(strength),
          row_(static_cast<size_t>(overlay.Width())) {}

    bool Touches(int32 row, int32 rows) const {
        return row < part_.top + part_.height && row + rows > part_.top;
    }
    // Draws what belongs into row y of the picture.
    void Paint(int32 y, bool big_endian, std::vector<uint32>& pixels) {
        if (!Touches(y, 1)) return;
        const bool overlay_big = IsBigEndian(overlay_.ColorSpace());
        overlay_.ReadRow(y - top_, reinterpret_cast<uint8*>(row_.data()));
        for (int32 x = part_.left; x < part_.left + part_.width; ++x) {
            const ColorBytes upper = ColorOf(row_[static_cast<size_t>(x - left_)], overlay_big);
            if (upper.alpha == 0) continue;
            uint32& pixel = pixels[static_cast<size_t>(x)];
            pixel = PixelOf(Over(upper, strength_, ColorOf(pixel, big_endian)), big_endian);
        }
    }

  private:
    const Picture& overlay_;
    const int32 left_;
    const int32 top_;
    const PlaneRect part_;
    const int32 strength_;
    std::vector<uint32> row_;
};

// Strips that the overlay does not touch are those of the picture.
std::shared_ptr<const Picture> PaintOver(const Picture& picture, OverlayPainter& painter,
                                         const std::shared_ptr<PixelBudget>& budget,
                                         const Work& work) {
    PictureBuilder builder(picture.Width(), picture.Height(), picture.ColorSpace(), budget);
    std::vector<uint32> pixels(static_cast<size_t>(picture.Width()));
    for (size_t i = 0; i < picture.AllStrips().size(); ++i) {
        if (work.StopRequested()) return nullptr;
        const std::shared_ptr<const Strip>& strip = picture.AllStrips()[i];
        const int32 first = picture.FirstRows()[i];
        if (!painter.Touches(first, strip->Rows())) {
            if (!builder.AddStrip(strip)) return nullptr;
            continue;
        }
        for (int32 y = first; y < first + strip->Rows(); ++y) {
            picture.ReadRow(y, reinterpret_cast<uint8*>(pixels.data()));
            painter.Paint(y, IsBigEndian(picture.ColorSpace()), pixels);
            if (!builder.AddRow(reinterpret_cast<const uint8*>(pixels.data()))) return nullptr;
        }
        if (!builder.EndStrip()) return nullptr;
    }
    return builder.Take();
}

}  // namespace

OverlayEdit::OverlayEdit(std::shared_ptr<const Picture> picture, int32 x, int32 y,
                         const OverlayFading& fading, const Animation& before,
                         const FrameSet& frames)
    : picture_(std::move(picture)),
      rect_(RectAt(*picture_, x, y)),
      visible_(Common(rect_, CanvasOf(before))),
      fading_(fading),
      positions_(frames.Positions()) {}

int32 OverlayEdit::StrengthAt(int32 position) const {
    const auto found = std::lower_bound(positions_.begin(), positions_.end(), position);
    const int64 before = found - positions_.begin();
    const int64 left = positions_.end() - found;  // with this one
    const int64 full = int64{fading_.percent} * kFull;
    const int64 in =
        full * std::min<int64>(before + 1, fading_.in + int64{1}) / (fading_.in + int64{1});
    const int64 out =
        full * std::min<int64>(left, fading_.out + int64{1}) / (fading_.out + int64{1});
    return static_cast<int32>((std::min(in, out) + 50) / 100);
}

PicturePlan OverlayEdit::PlanOf(const Animation& animation, int32 position) const {
    const Frame& frame = *animation.frames.At(position);
    const int32 strength = StrengthAt(position);
    PicturePlan plan;
    plan.x_offset = frame.x_offset;
    plan.y_offset = frame.y_offset;
    plan.keeps_picture = visible_.Empty() || strength == 0;
    if (plan.keeps_picture) return plan;
    const PlaneRect whole = Around(RectOf(frame), visible_);
    plan.x_offset = whole.left;
    plan.y_offset = whole.top;
    plan.variant = {frame.x_offset, frame.y_offset, strength, 0};
    return plan;
}

std::shared_ptr<const Picture> OverlayEdit::Make(const Picture& picture,
                                                 const PictureVariant& variant,
                                                 const std::shared_ptr<PixelBudget>& budget,
                                                 const Work& work) const {
    const PlaneRect before = RectAt(picture, variant[0], variant[1]);
    const PlaneRect whole = Around(before, visible_);
    const auto onto_it = [&whole](PlaneRect rect) {
        rect.left -= whole.left;
        rect.top -= whole.top;
        return rect;
    };
    const PlaneRect overlay = onto_it(rect_);
    OverlayPainter painter(*picture_, overlay.left, overlay.top, onto_it(visible_), variant[2]);
    if (whole == before) return PaintOver(picture, painter, budget, work);
    const PlaneRect grown = {whole.left - before.left, whole.top - before.top, whole.width,
                             whole.height};
    const std::shared_ptr<const Picture> larger = CutPicture(picture, grown, budget, work);
    return larger ? PaintOver(*larger, painter, budget, work) : nullptr;
}

}  // namespace kirto
