#include "effects/pictures/turn_picture.h"

#include <algorithm>
#include <vector>

#include "picture/picture_builder.h"

namespace kirto {

namespace {

// The last pixel first.
void Reverse(const uint32* source, int32 width, uint32* target) {
    std::reverse_copy(source, source + width, target);
}

// Row by row, each of them as it is or reversed.
std::shared_ptr<const Picture> TurnRows(const Picture& picture, Turn turn, PictureBuilder& builder,
                                        const Work& work) {
    const size_t width = static_cast<size_t>(picture.Width());
    std::vector<uint32> row(width);
    std::vector<uint32> reversed(width);
    for (int32 y = 0; y < picture.Height(); ++y) {
        if (work.StopRequested()) return nullptr;
        const int32 source = turn == Turn::kFlipAcross ? y : picture.Height() - 1 - y;
        picture.ReadRow(source, reinterpret_cast<uint8*>(row.data()));
        if (turn != Turn::kFlipDown) Reverse(row.data(), picture.Width(), reversed.data());
        const auto& turned = turn == Turn::kFlipDown ? row : reversed;
        if (!builder.AddRow(reinterpret_cast<const uint8*>(turned.data()))) return nullptr;
    }
    return builder.Take();
}

uint32 PixelAt(const PixelRow& row, size_t x) {
    if (row.indices) return (*row.table)->pixels[row.indices[x]];
    if (!row.pixels) return row.solid;
    uint32 pixel = 0;
    std::copy_n(row.pixels + x * 4, 4, reinterpret_cast<uint8*>(&pixel));
    return pixel;
}

// A few columns of the picture become rows at a time, so that each of its rows is looked at once
// for all of them.
std::shared_ptr<const Picture> TurnColumns(const Picture& picture, Turn turn,
                                           PictureBuilder& builder, const Work& work) {
    constexpr int32 kColumns = 32;
    const size_t length = static_cast<size_t>(picture.Height());
    std::vector<uint32> rows(length * kColumns);
    for (int32 first = 0; first < picture.Width(); first += kColumns) {
        const int32 columns = std::min(kColumns, picture.Width() - first);
        for (int32 y = 0; y < picture.Height(); ++y) {
            if (work.StopRequested()) return nullptr;
            const PixelRow row = picture.Row(y);
            const int32 place = turn == Turn::kRight ? picture.Height() - 1 - y : y;
            for (int32 i = 0; i < columns; ++i) {
                const int32 x = turn == Turn::kRight ? first + i : picture.Width() - 1 - first - i;
                rows[static_cast<size_t>(i) * length + static_cast<size_t>(place)] =
                    PixelAt(row, static_cast<size_t>(x));
            }
        }
        for (int32 i = 0; i < columns; ++i) {
            const uint32* turned = &rows[static_cast<size_t>(i) * length];
            if (!builder.AddRow(reinterpret_cast<const uint8*>(turned))) return nullptr;
        }
    }
    return builder.Take();
}

}  // namespace

PlaneRect Turned(const PlaneRect& rect, Turn turn, int32 width, int32 height) {
    const int32 right = width - (rect.left + rect.width);    // beside it
    const int32 bottom = height - (rect.top + rect.height);  // below it
    switch (turn) {
        case Turn::kRight:
            return {bottom, rect.left, rect.height, rect.width};
        case Turn::kLeft:
            return {rect.top, right, rect.height, rect.width};
        case Turn::kHalf:
            return {right, bottom, rect.width, rect.height};
        case Turn::kFlipAcross:
            return {right, rect.top, rect.width, rect.height};
        case Turn::kFlipDown:
            break;
    }
    return {rect.left, bottom, rect.width, rect.height};
}

std::shared_ptr<const Picture> TurnPicture(const Picture& picture, Turn turn,
                                           const std::shared_ptr<PixelBudget>& budget,
                                           const Work& work) {
    if (!picture.HasRows()) return nullptr;
    const bool swaps = SwapsSides(turn);
    PictureBuilder builder(swaps ? picture.Height() : picture.Width(),
                           swaps ? picture.Width() : picture.Height(), picture.ColorSpace(),
                           budget);
    return swaps ? TurnColumns(picture, turn, builder, work)
                 : TurnRows(picture, turn, builder, work);
}

}  // namespace kirto
