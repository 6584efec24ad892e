#include "effects/pictures/map_colors.h"

#include <cstring>
#include <map>
#include <vector>

#include "picture/picture_builder.h"

namespace kirto {

namespace {

// Maps pixels as they lie in memory.
class PixelMapping {
  public:
    PixelMapping(const ColorMap& map, bool big_endian) : map_(map), big_endian_(big_endian) {}

    uint32 Of(uint32 pixel) const {
        const ColorBytes color = ColorOf(pixel, big_endian_);
        return color.alpha == 0 ? pixel : PixelOf(map_.Of(color), big_endian_);
    }
    void Map(std::vector<uint32>& row) const {
        uint32 last = 0;
        uint32 mapped = Of(last);
        for (uint32& pixel : row) {
            // Neighbors are often equal.
            if (pixel != last) {
                last = pixel;
                mapped = Of(pixel);
            }
            pixel = mapped;
        }
    }
    // Strips one below the other often have the same table.
    SharedPixelTable Of(const SharedPixelTable& table) {
        SharedPixelTable& known = tables_[table];
        if (known) return known;
        const auto mapped = std::make_shared<PixelTable>();
        for (size_t i = 0; i < mapped->pixels.size(); ++i)
            mapped->pixels[i] = Of(table->pixels[i]);
        known = mapped;
        return known;
    }

  private:
    const ColorMap& map_;
    const bool big_endian_;
    std::map<SharedPixelTable, SharedPixelTable> tables_;
};

bool AddMapped(const Strip& strip, int32 width, PixelMapping& mapping, PictureBuilder& builder) {
    if (strip.Indices()) return builder.AddStrip(strip.WithTable(mapping.Of(strip.Table())));
    if (!strip.Pixels()) {
        return builder.AddStrip(Strip::Solid(mapping.Of(strip.Row(0).solid), width, strip.Rows()));
    }
    std::vector<uint32> row(static_cast<size_t>(width));
    for (int32 y = 0; y < strip.Rows(); ++y) {
        std::memcpy(row.data(), strip.Row(y).pixels, row.size() * 4);
        mapping.Map(row);
        if (!builder.AddRow(reinterpret_cast<const uint8*>(row.data()))) return false;
    }
    return builder.EndStrip();
}

}  // namespace

std::shared_ptr<const Picture> MapColors(const Picture& picture, const ColorMap& map,
                                         const std::shared_ptr<PixelBudget>& budget,
                                         const Work& work) {
    if (!picture.HasRows()) return nullptr;
    PixelMapping mapping(map, IsBigEndian(picture.ColorSpace()));
    PictureBuilder builder(picture.Width(), picture.Height(), picture.ColorSpace(), budget);
    for (const std::shared_ptr<const Strip>& strip : picture.AllStrips()) {
        if (work.StopRequested()) return nullptr;
        if (!AddMapped(*strip, picture.Width(), mapping, builder)) return nullptr;
    }
    return builder.Take();
}

}  // namespace kirto
