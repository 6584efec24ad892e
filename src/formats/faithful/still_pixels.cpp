#include "formats/faithful/still_pixels.h"

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "formats/faithful/pixel_tolerance.h"
#include "formats/faithful/screen.h"
#include "picture/picture_builder.h"

namespace kirto {

namespace {

// Pixels in a row that stay together, or not at all.
constexpr size_t kShortestStretch = 12;

bool IsNear(uint32 key, uint32 other, int64 tolerance) {
    if (key == other) return true;
    return key != kNothing && other != kNothing && SquareDistance(key, other) <= tolerance;
}

// Single pixels that stay would tear strings apart.
void KeepNear(std::span<const uint32> before, int64 tolerance, std::span<uint32> row) {
    for (size_t from = 0; from < row.size();) {
        size_t end = from;
        while (end < row.size() && IsNear(row[end], before[end], tolerance))
            ++end;
        if (end - from >= kShortestStretch)
            std::copy(before.begin() + static_cast<ptrdiff_t>(from),
                      before.begin() + static_cast<ptrdiff_t>(end),
                      row.begin() + static_cast<ptrdiff_t>(from));
        from = end + 1;
    }
}

void KeepNear(const Screen& screen, const ScreenPixels& before, int64 tolerance,
              ScreenPixels* shown) {
    const auto width = static_cast<size_t>(screen.Width());
    for (int32 y = 0; y < screen.Height(); ++y) {
        const size_t start = screen.At(0, y);
        KeepNear(std::span(before).subspan(start, width), tolerance,
                 std::span(*shown).subspan(start, width));
    }
}

std::shared_ptr<const Picture> BuildPicture(const ScreenPixels& shown, const Screen& screen,
                                            const std::shared_ptr<PixelBudget>& budget,
                                            std::shared_ptr<const Picture> earlier) {
    PictureBuilder builder(screen.Width(), screen.Height(), B_RGB32, budget, std::move(earlier));
    const auto width = static_cast<size_t>(screen.Width());
    std::vector<uint8> row(4 * width);
    for (int32 y = 0; y < screen.Height(); ++y) {
        FillPixels({shown.data() + screen.At(0, y), width}, row.data());
        if (!builder.AddRow(row.data())) return nullptr;
    }
    return builder.Take();
}

}  // namespace

std::optional<Animation> WithStillPixels(const Animation& animation, const AlphaMatte& matte,
                                         int64 tolerance,
                                         const std::shared_ptr<PixelBudget>& budget,
                                         const Work& work) {
    const Screen screen(animation.width, animation.height, matte);
    ScreenPixels before = screen.Empty();
    std::shared_ptr<const Picture> picture;
    Animation result = animation;
    for (int32 i = 0; i < animation.frames.Size(); ++i) {
        if (work.StopRequested()) return std::nullopt;
        ScreenPixels shown = screen.Show(ScreenImage::Of(*animation.frames.At(i)));
        KeepNear(screen, before, tolerance, &shown);
        picture = BuildPicture(shown, screen, budget, picture);
        if (!picture) return std::nullopt;
        EditFrame(result, i, [&](Frame& frame) {
            frame.bitmap = picture;
            frame.x_offset = frame.y_offset = 0;
            frame.width = screen.Width();
            frame.height = screen.Height();
            frame.source = nullptr;
        });
        before = std::move(shown);
    }
    return result;
}

}  // namespace kirto
