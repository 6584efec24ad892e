#include "picture/index_painter.h"

#include <algorithm>
#include <cstring>

namespace kirto {

namespace {

// Indices that are painted together.
using Group = uint8 __attribute__((vector_size(16)));

// Copies indices but for those that are the skipped one.
void CopyExcept(uint8 skipped, const uint8* indices, size_t count, uint8* target) {
    const Group all_skipped = Group{} + skipped;
    for (; count >= sizeof(Group); count -= sizeof(Group)) {
        Group above;
        Group below;
        std::memcpy(&above, indices, sizeof(above));
        std::memcpy(&below, target, sizeof(below));
        const Group shows = reinterpret_cast<Group>(above == all_skipped);
        below = (below & shows) | (above & ~shows);
        std::memcpy(target, &below, sizeof(below));
        indices += sizeof(Group);
        target += sizeof(Group);
    }
    for (size_t i = 0; i < count; ++i)
        if (indices[i] != skipped) target[i] = indices[i];
}

// What the image has of one row of the picture.
struct RowPart {
    const uint8* indices;
    size_t left;
    size_t count;
};

RowPart PartOf(const IndexImage& image, int32 y, int32 picture_width) {
    const int32 row = y - image.top;
    if (row < 0 || row >= image.height) return {image.indices.data(), 0, 0};
    const int32 there =
        image.row_lengths.empty() ? image.width : image.row_lengths[static_cast<size_t>(row)];
    const int32 count = std::clamp(picture_width - image.left, 0, there);
    const size_t skipped =
        image.repeats ? 0 : static_cast<size_t>(row) * static_cast<size_t>(image.width);
    return {image.indices.data() + skipped, static_cast<size_t>(image.left),
            static_cast<size_t>(count)};
}

// Whether nothing of the rows below shows through.
bool Covers(const IndexImage& image, int32 first, int32 end, int32 picture_width) {
    if (image.skipped >= 0) return false;
    if (image.left > 0 || image.width < picture_width) return false;
    if (first < image.top || end > image.top + image.height) return false;
    if (image.row_lengths.empty()) return true;
    const auto lengths = image.row_lengths.subspan(static_cast<size_t>(first - image.top),
                                                   static_cast<size_t>(end - first));
    return std::ranges::all_of(lengths,
                               [picture_width](int32 length) { return length >= picture_width; });
}

// Whether the image has no pixels in these rows, all of which are its own.
bool IsEmpty(const IndexImage& image, int32 first, int32 end) {
    if (image.row_lengths.empty() || first < image.top || end > image.top + image.height)
        return false;
    const auto lengths = image.row_lengths.subspan(static_cast<size_t>(first - image.top),
                                                   static_cast<size_t>(end - first));
    return std::ranges::all_of(lengths, [](int32 length) { return length == 0; });
}

int32 IndexOf(uint32 pixel, const PixelTable& table) {
    const auto* const place = std::find(table.pixels.begin(), table.pixels.end(), pixel);
    return place == table.pixels.end() ? -1 : static_cast<int32>(place - table.pixels.begin());
}

// Calls what with each of the picture's strips that has rows from first on, up to end, the first of
// these in the strip and the number of them. It returns whether to go on.
template <typename What>
void ForStrips(const Picture& picture, int32 first, int32 end, const What& what) {
    for (size_t i = picture.StripAt(first); first < end; ++i) {
        const Strip& strip = *picture.AllStrips()[i];
        const int32 skipped = first - picture.FirstRows()[i];
        const int32 rows = std::min(strip.Rows() - skipped, end - first);
        if (!what(strip, skipped, rows)) return;
        first += rows;
    }
}

// Writes indices into the table for rows that have none of 4-byte pixels.
void CopyBelow(const Picture& picture, int32 first, int32 end, const PixelTable& table,
               uint8* target) {
    const size_t width = static_cast<size_t>(picture.Width());
    ForStrips(picture, first, end, [&](const Strip& strip, int32 skipped, int32 rows) {
        const PixelRow below = strip.Row(skipped);
        const size_t size = width * static_cast<size_t>(rows);
        if (below.indices) {
            std::memcpy(target, below.indices, size);
        } else {
            std::memset(target, IndexOf(below.solid, table), size);
        }
        target += size;
        return true;
    });
}

// Whether the picture has these very strips from that row on.
bool AreThere(const Picture::Strips& strips, const Picture& picture, int32 row) {
    const size_t place = picture.StripAt(row);
    const Picture::Strips& all = picture.AllStrips();
    return picture.FirstRows()[place] == row && strips.size() <= all.size() - place &&
           std::equal(strips.begin(), strips.end(),
                      all.begin() + static_cast<std::ptrdiff_t>(place));
}

// Whether the image's indices mean in that table what they mean in its own.
bool Agree(const SharedPixelTable& table, const IndexImage& image) {
    if (table == image.table) return true;
    for (size_t i = 0; i < table->pixels.size(); ++i) {
        const bool same = table->pixels[i] == image.table->pixels[i];
        if (!same && static_cast<int32>(i) != image.skipped) return false;
    }
    return true;
}

}  // namespace

std::shared_ptr<const Picture> IndexPainter::Paint(const std::shared_ptr<const Picture>& base,
                                                   const IndexImage& image) {
    return PaintBands(base, image, [&](const Band& band, PictureBuilder& builder) {
        return AddBand(*base, image, band, builder);
    });
}

std::shared_ptr<const Picture> IndexPainter::Fill(const std::shared_ptr<const Picture>& base,
                                                  const PixelRect& rect, uint32 pixel) {
    IndexImage image;
    image.left = rect.left;
    image.top = rect.top;
    image.width = rect.width;
    image.height = rect.height;
    image.repeats = true;
    return PaintBands(base, image, [&](const Band& band, PictureBuilder& builder) {
        return AddFilledBand(*base, image, pixel, band, builder);
    });
}

// Leaves the base as it is but for the bands of rows that the image touches, which add() adds.
template <typename Add>
std::shared_ptr<const Picture> IndexPainter::PaintBands(
    const std::shared_ptr<const Picture>& shared_base, const IndexImage& image, const Add& add) {
    const Picture& base = *shared_base;
    const int32 width = base.Width();
    const int32 height = base.Height();
    const bool empty = image.width == 0 || image.height == 0;
    if (empty || image.left >= width || image.top >= height) return Picture::Again(base, budget_);
    const Band touched = TouchedRows(base, image);
    PictureBuilder builder(width, height, base.ColorSpace(), budget_, shared_base);
    builder.StartAt(touched.first);
    // What is painted is cut anew, so that strips do not become ever smaller.
    const int32 step = Strip::RowsFor(width);
    for (Band band{touched.first, 0}; band.first < touched.end; band.first = band.end) {
        band.end = std::min((band.first / step + 1) * step, touched.end);
        if (!add(band, builder)) return nullptr;
    }
    const Picture::Strips painted = builder.TakeStrips();
    if (painted.empty()) return nullptr;
    if (AreThere(painted, base, touched.first)) return Picture::Again(base, budget_);
    Picture::Strips strips;
    AddRows(base, {0, touched.first}, &strips);
    strips.insert(strips.end(), painted.begin(), painted.end());
    AddRows(base, {touched.end, height}, &strips);
    return Picture::Of(std::move(strips), width, base.ColorSpace(), budget_);
}

// The pixel in place of the image, by its index in the table that the rows below have, so that they
// stay what they are.
bool IndexPainter::AddFilledBand(const Picture& base, const IndexImage& image, uint32 pixel,
                                 const Band& band, PictureBuilder& builder) {
    SharedPixelTable table;
    bool filled = true;
    for (int32 y = band.first; y < band.end && !table; ++y) {
        const PixelRow row = base.Row(y);
        if (row.indices) table = *row.table;
        filled = filled && !row.indices && !row.pixels && row.solid == pixel;
    }
    if (filled) return AddBelow(base, band, builder);
    int32 index = table ? IndexOf(pixel, *table) : -1;
    if (index < 0) {
        auto own = std::make_shared<PixelTable>();
        own->pixels.fill(pixel);
        table = std::move(own);
        index = 0;
    }
    const std::vector<uint8> row(static_cast<size_t>(image.width), static_cast<uint8>(index));
    IndexImage filling = image;
    filling.table = std::move(table);
    filling.indices = row;
    return AddBand(base, filling, band, builder);
}

// The rows that get new strips: those of the image, and where the base has become a list of very
// many strips, all that would be in one strip with them.
IndexPainter::Band IndexPainter::TouchedRows(const Picture& base, const IndexImage& image) {
    constexpr size_t kPieces = 4;
    const int32 step = Strip::RowsFor(base.Width());
    const size_t whole = static_cast<size_t>((base.Height() + step - 1) / step);
    const int32 end = std::min(image.top + image.height, base.Height());
    if (base.AllStrips().size() <= kPieces * whole) return {image.top, end};
    return {image.top / step * step, std::min((end + step - 1) / step * step, base.Height())};
}

// Adds rows of the base as they are.
void IndexPainter::AddRows(const Picture& base, const Band& rows, Picture::Strips* strips) {
    for (size_t i = base.StripAt(rows.first); i < base.AllStrips().size(); ++i) {
        const std::shared_ptr<const Strip>& strip = base.AllStrips()[i];
        const int32 first = base.FirstRows()[i];
        const int32 begin = std::max(rows.first, first);
        const int32 end = std::min(rows.end, first + strip->Rows());
        if (begin >= end) break;
        const bool whole = end - begin == strip->Rows();
        strips->push_back(whole ? strip : strip->Slice(begin - first, end - begin));
    }
}

bool IndexPainter::AddBelow(const Picture& base, const Band& band, PictureBuilder& builder) {
    Picture::Strips below;
    AddRows(base, band, &below);
    return std::ranges::all_of(below,
                               [&builder](const auto& strip) { return builder.AddStrip(strip); });
}

bool IndexPainter::AddBand(const Picture& base, const IndexImage& image, const Band& band,
                           PictureBuilder& builder) {
    if (IsEmpty(image, band.first, band.end)) return AddBelow(base, band, builder);
    const SharedPixelTable table = TableFor(base, image, band);
    if (!table) return AddPixels(base, image, band, builder);
    std::shared_ptr<const Strip> strip = MakeStrip(
        base, band, table, PaintIndices(base, image, band, *table), CountsOf(base, image, band));
    return strip && builder.AddStrip(std::move(strip));
}

// A table in which both the image and what shows through of the rows below can be told, or null.
SharedPixelTable IndexPainter::TableFor(const Picture& base, const IndexImage& image,
                                        const Band& band) {
    if (Covers(image, band.first, band.end, base.Width())) return image.table;
    SharedPixelTable table;
    bool possible = true;
    ForStrips(base, band.first, band.end, [&](const Strip& strip, int32, int32) {
        const SharedPixelTable& below = strip.Table();
        if (strip.Pixels() || (below && below != table && (table || !Agree(below, image))))
            possible = false;
        if (below) table = below;
        return possible;
    });
    if (!possible) return nullptr;
    ForStrips(base, band.first, band.end, [&](const Strip& strip, int32, int32) {
        if (strip.Indices()) return true;
        const uint32 solid = strip.Row(0).solid;
        if (!table) table = WithPixel(image, solid);
        possible = table && IndexOf(solid, *table) >= 0;
        return possible;
    });
    return possible ? table : nullptr;
}

// The image's table, or one that has the pixel in the place of the index that is skipped; null
// where there is none.
SharedPixelTable IndexPainter::WithPixel(const IndexImage& image, uint32 pixel) {
    if (IndexOf(pixel, *image.table) >= 0) return image.table;
    if (image.skipped < 0) return nullptr;
    PixelTable table = *image.table;
    table.pixels[static_cast<size_t>(image.skipped)] = pixel;
    if (!extended_ || *extended_ != table) extended_ = std::make_shared<const PixelTable>(table);
    return extended_;
}

// The band's indices, counted before, or null.
const IndexCounts* IndexPainter::CountsOf(const Picture& base, const IndexImage& image,
                                          const Band& band) {
    const bool whole = image.top == 0 && image.height == base.Height();
    if (image.counts.empty() || !whole || !Covers(image, band.first, band.end, base.Width()))
        return nullptr;
    return &image.counts[static_cast<size_t>(band.first / Strip::RowsFor(base.Width()))];
}

// The band's indices into the table, where the image has them or in storage_; none when memory is
// short.
std::span<const uint8> IndexPainter::PaintIndices(const Picture& base, const IndexImage& image,
                                                  const Band& band, const PixelTable& table) {
    const size_t width = static_cast<size_t>(base.Width());
    const size_t size = width * static_cast<size_t>(band.end - band.first);
    const bool covered = Covers(image, band.first, band.end, base.Width());
    if (covered && image.width == base.Width() && !image.repeats)
        return {PartOf(image, band.first, base.Width()).indices, size};
    if (!ProvideStorage(size)) return {};
    uint8* target = storage_->Bytes();
    const std::span<const uint8> painted{target, size};
    if (!covered) CopyBelow(base, band.first, band.end, table, target);
    for (int32 y = band.first; y < band.end; ++y, target += width) {
        const RowPart part = PartOf(image, y, base.Width());
        if (image.skipped < 0) {
            std::memcpy(target + part.left, part.indices, part.count);
        } else {
            CopyExcept(static_cast<uint8>(image.skipped), part.indices, part.count,
                       target + part.left);
        }
    }
    return painted;
}

bool IndexPainter::ProvideStorage(size_t size) {
    if (!storage_ || storage_->Size() != size) storage_ = PixelStorage::MakeUnfilled(size, nullptr);
    return storage_ != nullptr;
}

// The band of these indices; the base's own strip where it is the same. Null when memory is short.
std::shared_ptr<const Strip> IndexPainter::MakeStrip(const Picture& base, const Band& band,
                                                     const SharedPixelTable& table,
                                                     std::span<const uint8> indices,
                                                     const IndexCounts* counts) {
    if (indices.empty()) return nullptr;
    const int32 rows = band.end - band.first;
    const size_t place = base.StripAt(band.first);
    const std::shared_ptr<const Strip>& below = base.AllStrips()[place];
    const bool in_place = base.FirstRows()[place] == band.first && below->Rows() == rows;
    if (std::memcmp(indices.data(), indices.data() + 1, indices.size() - 1) == 0) {
        const uint32 pixel = table->pixels[indices[0]];
        return in_place && below->IsSolid(pixel) ? below : Strip::Solid(pixel, base.Width(), rows);
    }
    const bool similar = in_place && below->Table() == table;
    if (similar && std::memcmp(below->Indices(), indices.data(), indices.size()) == 0) return below;
    std::shared_ptr<PixelStorage> storage = TakeStorage(indices);
    if (!storage) return nullptr;
    return Strip::Indexed(std::move(storage), table, base.Width(), rows, counts,
                          similar ? below : nullptr);
}

// The indices in storage of their own; null when memory is short.
std::shared_ptr<PixelStorage> IndexPainter::TakeStorage(std::span<const uint8> indices) {
    if (storage_ && storage_->Bytes() == indices.data())
        return storage_->LetCount(budget_) ? std::move(storage_) : nullptr;
    std::shared_ptr<PixelStorage> storage = PixelStorage::MakeUnfilled(indices.size(), budget_);
    if (storage) std::memcpy(storage->Bytes(), indices.data(), indices.size());
    return storage;
}

// The band where there is no such table: pixel by pixel.
bool IndexPainter::AddPixels(const Picture& base, const IndexImage& image, const Band& band,
                             PictureBuilder& builder) {
    work_.resize(static_cast<size_t>(base.Width()) * 4);
    for (int32 y = band.first; y < band.end; ++y) {
        base.ReadRow(y, work_.data());
        const RowPart part = PartOf(image, y, base.Width());
        for (size_t i = 0; i < part.count; ++i) {
            if (part.indices[i] == image.skipped) continue;
            std::memcpy(work_.data() + (part.left + i) * 4, &image.table->pixels[part.indices[i]],
                        4);
        }
        if (!builder.AddRow(work_.data())) return false;
    }
    return builder.EndStrip();
}

}  // namespace kirto
