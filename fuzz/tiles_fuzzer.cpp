// Arbitrary bytes as a grid and a picture: the frames that are cut are those that looking for each
// tile pixel by pixel gives. The first ten bytes are the numbers.
#include <cstdlib>
#include <cstring>
#include <vector>

#include "document/animation_document.h"
#include "effects/cut_sheet.h"
#include "effects/tile_layout.h"

namespace {

constexpr size_t kNumbers = 10;
constexpr int32 kLongestSide = 24;

void Check(bool holds) {
    if (!holds) std::abort();
}

std::shared_ptr<BBitmap> PictureOf(const uint8_t* data, size_t size, int32 width, int32 height,
                                   color_space space) {
    auto bitmap = std::make_shared<BBitmap>(BRect::OfSize(width, height), space);
    for (int32 y = 0; y < height; ++y) {
        for (size_t i = 0; i < bitmap->BytesPerRow(); ++i) {
            const size_t place = static_cast<size_t>(y) * bitmap->BytesPerRow() + i;
            bitmap->Row(y)[i] = size > 0 ? data[place % size] : 0;
        }
    }
    return bitmap;
}

// Where tiles begin along a side, found by trying each place.
std::vector<int32> PlainStarts(int32 side, int32 count, int32 size, const kirto::TileGrid& grid,
                               int32* tile) {
    std::vector<int32> starts;
    const bool given = size > 0;
    // As large as so many of them have room, margins and all.
    for (int32 each = 1; !given && each <= side; ++each) {
        const int64 all =
            int64{2} * grid.margin + int64{count} * each + int64{count - 1} * grid.spacing;
        if (all <= side) size = each;
    }
    *tile = size;
    int64 start = grid.margin;
    while (size > 0 && start + size <= side &&
           (given || static_cast<int32>(starts.size()) < count)) {
        starts.push_back(static_cast<int32>(start));
        start += size + grid.spacing;
    }
    return starts;
}

bool IsPlainlyEmpty(const BBitmap& picture, const kirto::TilePlace& place) {
    const bool big = kirto::IsBigEndian(picture.ColorSpace());
    for (int32 y = 0; y < place.height; ++y) {
        for (int32 x = 0; x < place.width; ++x) {
            const int32 alpha = (place.left + x) * 4 + (big ? 0 : 3);
            if (picture.Row(place.top + y)[alpha] != 0) return false;
        }
    }
    return true;
}

void CheckFrame(const Frame& frame, const BBitmap& picture, const kirto::TilePlace& place) {
    Check(frame.width == place.width && frame.height == place.height);
    std::vector<uint8> row(static_cast<size_t>(place.width) * 4);
    for (int32 y = 0; y < place.height; ++y) {
        frame.bitmap->ReadRow(y, row.data());
        Check(std::memcmp(row.data(), picture.Row(place.top + y) + place.left * 4, row.size()) ==
              0);
    }
}

kirto::TileGrid GridOf(const uint8_t* numbers) {
    kirto::TileGrid grid;
    grid.rows = numbers[0] % 16;
    grid.columns = numbers[1] % 16;
    grid.margin = numbers[2] % 8;
    grid.spacing = numbers[3] % 8;
    grid.tile_width = numbers[4] % 24;
    grid.tile_height = numbers[5] % 24;
    grid.column_by_column = numbers[6] % 2 == 1;
    return grid;
}

// The tiles in their order.
std::vector<kirto::TilePlace> PlainPlaces(const BBitmap& picture, const kirto::TileGrid& grid) {
    int32 width = 0;
    int32 height = 0;
    const auto across = PlainStarts(picture.Width(), grid.columns, grid.tile_width, grid, &width);
    const auto down = PlainStarts(picture.Height(), grid.rows, grid.tile_height, grid, &height);
    std::vector<kirto::TilePlace> places;
    if (grid.column_by_column) {
        for (const int32 left : across) {
            for (const int32 top : down)
                places.push_back({left, top, width, height});
        }
    } else {
        for (const int32 top : down) {
            for (const int32 left : across)
                places.push_back({left, top, width, height});
        }
    }
    return places;
}

kirto::SheetTile TileAt(const kirto::TilePlace& place) {
    kirto::SheetTile tile;
    tile.left = place.left;
    tile.top = place.top;
    tile.width = place.width;
    tile.height = place.height;
    return tile;
}

void CheckCut(const BBitmap& picture, const std::vector<kirto::TilePlace>& places) {
    Prefs prefs{Prefs::BuiltIn{}};
    AnimationDocument document(prefs);
    kirto::SheetCut cut;
    cut.count = static_cast<int32>(places.size());
    cut.tile = [&](int32 i) { return TileAt(places[static_cast<size_t>(i)]); };
    Check(kirto::CutSheet(document, picture, cut).inserted == cut.count);
    for (int32 i = 0; i < cut.count; ++i)
        CheckFrame(*document.FrameAt(i), picture, places[static_cast<size_t>(i)]);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < kNumbers) return 0;
    constexpr color_space kSpaces[] = {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG};
    const auto picture = PictureOf(data + kNumbers, size - kNumbers, 1 + data[0] % kLongestSide,
                                   1 + data[1] % kLongestSide, kSpaces[data[9] % 4]);
    const kirto::TileGrid grid = GridOf(data + 2);
    if (!grid.IsSound()) return 0;
    const std::vector<kirto::TilePlace> places = PlainPlaces(*picture, grid);
    const kirto::TileLayout layout(picture->Width(), picture->Height(), grid);
    Check(layout.Count() == static_cast<int64>(places.size()));
    for (size_t i = 0; i < places.size(); ++i) {
        const kirto::TilePlace place = layout.PlaceOf(static_cast<int32>(i));
        Check(std::memcmp(&place, &places[i], sizeof(place)) == 0);
        Check(kirto::IsEmptyTile(*picture, place) == IsPlainlyEmpty(*picture, place));
    }
    CheckCut(*picture, places);
    return 0;
}
