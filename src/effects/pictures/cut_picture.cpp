#include "effects/pictures/cut_picture.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>
#include <vector>

#include "effects/pictures/pixel_order.h"
#include "picture/picture_builder.h"
#include "picture/pixel_storage.h"

namespace kirto {

namespace {

// Of coordinates that may be anything an int32 holds.
PlaneRect OfEdges(int64 left, int64 top, int64 right, int64 bottom) {
    if (right <= left || bottom <= top) return {};
    constexpr int64 kMost = std::numeric_limits<int32>::max();
    return {static_cast<int32>(left), static_cast<int32>(top),
            static_cast<int32>(std::min(right - left, kMost)),
            static_cast<int32>(std::min(bottom - top, kMost))};
}

int64 Right(const PlaneRect& rect) {
    return int64{rect.left} + rect.width;
}

int64 Bottom(const PlaneRect& rect) {
    return int64{rect.top} + rect.height;
}

// Columns of a strip, from that one on; null when memory is short.
std::shared_ptr<const Strip> CutColumns(const Strip& strip, int32 left, int32 width,
                                        const std::shared_ptr<PixelBudget>& budget) {
    const bool indexed = strip.Indices() != nullptr;
    if (!indexed && !strip.Pixels()) return Strip::Solid(strip.Row(0).solid, width, strip.Rows());
    const size_t bytes_a_pixel = indexed ? 1 : 4;
    const size_t row_bytes = static_cast<size_t>(width) * bytes_a_pixel;
    const std::shared_ptr<PixelStorage> storage =
        PixelStorage::Make(row_bytes * static_cast<size_t>(strip.Rows()), budget);
    if (!storage) return nullptr;
    uint8* target = storage->Bytes();
    for (int32 y = 0; y < strip.Rows(); ++y, target += row_bytes) {
        const PixelRow row = strip.Row(y);
        const uint8* source = indexed ? row.indices : row.pixels;
        std::memcpy(target, source + static_cast<size_t>(left) * bytes_a_pixel, row_bytes);
    }
    if (indexed) return Strip::Indexed(storage, strip.Table(), width, strip.Rows());
    return Strip::Direct(storage, storage->Bytes(), width, strip.Rows());
}

// A part of the picture.
std::shared_ptr<const Picture> CutInside(const Picture& picture, const PlaneRect& rect,
                                         const std::shared_ptr<PixelBudget>& budget,
                                         const Work& work) {
    Picture::Strips strips;
    const int32 bottom = rect.top + rect.height;
    for (size_t i = picture.StripAt(rect.top); i < picture.AllStrips().size(); ++i) {
        if (work.StopRequested()) return nullptr;
        std::shared_ptr<const Strip> strip = picture.AllStrips()[i];
        const int32 first_row = picture.FirstRows()[i];
        if (first_row >= bottom) break;
        const int32 first = std::max(rect.top - first_row, 0);
        const int32 rows = std::min(strip->Rows(), bottom - first_row) - first;
        if (rows < strip->Rows()) strip = strip->Slice(first, rows);
        if (rect.width < picture.Width()) strip = CutColumns(*strip, rect.left, rect.width, budget);
        if (!strip) return nullptr;
        strips.push_back(std::move(strip));
    }
    return Picture::Of(std::move(strips), rect.width, picture.ColorSpace(), budget);
}

// A rectangle that reaches beyond the picture, but has a part of it.
std::shared_ptr<const Picture> CutBeyond(const Picture& picture, const PlaneRect& rect,
                                         const PlaneRect& inside,
                                         const std::shared_ptr<PixelBudget>& budget,
                                         const Work& work) {
    PictureBuilder builder(rect.width, rect.height, picture.ColorSpace(), budget);
    std::vector<uint8> source(static_cast<size_t>(picture.Width()) * 4);
    std::vector<uint8> row(static_cast<size_t>(rect.width) * 4);
    const size_t from = static_cast<size_t>(inside.left) * 4;
    const size_t to = static_cast<size_t>(inside.left - rect.left) * 4;
    const size_t size = static_cast<size_t>(inside.width) * 4;
    for (int32 i = 0; i < rect.height; ++i) {
        if (work.StopRequested()) return nullptr;
        const int32 y = rect.top + i;
        std::fill(row.begin(), row.end(), uint8{0});
        if (y >= inside.top && y < inside.top + inside.height) {
            picture.ReadRow(y, source.data());
            std::memcpy(&row[to], &source[from], size);
        }
        if (!builder.AddRow(row.data())) return nullptr;
    }
    return builder.Take();
}

}  // namespace

PlaneRect Common(const PlaneRect& a, const PlaneRect& b) {
    return OfEdges(std::max(a.left, b.left), std::max(a.top, b.top), std::min(Right(a), Right(b)),
                   std::min(Bottom(a), Bottom(b)));
}

PlaneRect Around(const PlaneRect& a, const PlaneRect& b) {
    if (a.Empty()) return b;
    if (b.Empty()) return a;
    return OfEdges(std::min(a.left, b.left), std::min(a.top, b.top), std::max(Right(a), Right(b)),
                   std::max(Bottom(a), Bottom(b)));
}

std::shared_ptr<const Picture> CutPicture(const Picture& picture, const PlaneRect& rect,
                                          const std::shared_ptr<PixelBudget>& budget,
                                          const Work& work) {
    if (!picture.HasRows()) return nullptr;
    const PlaneRect inside = Common(rect, {0, 0, picture.Width(), picture.Height()});
    if (inside == rect) return CutInside(picture, rect, budget, work);
    if (std::max(rect.width, rect.height) > kMostPixelsOfASide) return nullptr;
    if (inside.Empty()) {
        return Picture::Solid(kTransparentPixel, rect.width, rect.height, picture.ColorSpace(),
                              budget);
    }
    return CutBeyond(picture, rect, inside, budget, work);
}

}  // namespace kirto
