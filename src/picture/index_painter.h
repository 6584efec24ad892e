#pragma once

#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "base/types.h"
#include "picture/index_counts.h"
#include "picture/picture.h"
#include "picture/picture_builder.h"
#include "picture/pixel_rect.h"

namespace kirto {

// A rectangle of indices in memory, that is painted over a picture. What lies outside the picture
// is dropped.
struct IndexImage {
    std::span<const uint8> indices;  // row by row, width of each; or the same row again and again
    int32 left = 0;                  // on the picture, 0 or more, as top
    int32 top = 0;
    int32 width = 0;
    int32 height = 0;
    SharedPixelTable table;
    int32 skipped = -1;  // pixels of this index stay as they are; -1: none
    // So many of each row's pixels are there, from the left; empty: all of them.
    std::span<const int32> row_lengths;
    // The indices of each strip's rows, counted, where the image is the whole picture; may be
    // empty.
    std::span<const IndexCounts> counts;
    bool repeats = false;  // there is one row of indices, for all rows
};

// Makes pictures by painting images of indices over others. What an image does not touch is shared
// with the picture below. Used by one thread.
class IndexPainter {
  public:
    // The budget, if any, counts the pictures' pixels.
    explicit IndexPainter(std::shared_ptr<PixelBudget> budget) : budget_(std::move(budget)) {}

    // A new picture, the image over the base, which has rows; null when memory is short.
    std::shared_ptr<const Picture> Paint(const std::shared_ptr<const Picture>& base,
                                         const IndexImage& image);
    // The same with a rectangle of one pixel in the place of an image.
    std::shared_ptr<const Picture> Fill(const std::shared_ptr<const Picture>& base,
                                        const PixelRect& rect, uint32 pixel);

  private:
    // The rows from first on, up to end.
    struct Band {
        int32 first = 0;
        int32 end = 0;
    };

    template <typename Add>
    std::shared_ptr<const Picture> PaintBands(const std::shared_ptr<const Picture>& shared_base,
                                              const IndexImage& image, const Add& add);
    bool AddFilledBand(const Picture& base, const IndexImage& image, uint32 pixel, const Band& band,
                       PictureBuilder& builder);
    static Band TouchedRows(const Picture& base, const IndexImage& image);
    static void AddRows(const Picture& base, const Band& rows, Picture::Strips* strips);
    static bool AddBelow(const Picture& base, const Band& band, PictureBuilder& builder);
    bool AddBand(const Picture& base, const IndexImage& image, const Band& band,
                 PictureBuilder& builder);
    SharedPixelTable TableFor(const Picture& base, const IndexImage& image, const Band& band);
    SharedPixelTable WithPixel(const IndexImage& image, uint32 pixel);
    static const IndexCounts* CountsOf(const Picture& base, const IndexImage& image,
                                       const Band& band);
    std::span<const uint8> PaintIndices(const Picture& base, const IndexImage& image,
                                        const Band& band, const PixelTable& table);
    std::shared_ptr<const Strip> MakeStrip(const Picture& base, const Band& band,
                                           const SharedPixelTable& table,
                                           std::span<const uint8> indices,
                                           const IndexCounts* counts);
    std::shared_ptr<PixelStorage> TakeStorage(std::span<const uint8> indices);
    bool ProvideStorage(size_t size);
    bool AddPixels(const Picture& base, const IndexImage& image, const Band& band,
                   PictureBuilder& builder);

    const std::shared_ptr<PixelBudget> budget_;
    // The last image's table with a pixel of the base in the place of the index that is skipped.
    SharedPixelTable extended_;
    std::shared_ptr<PixelStorage> storage_;  // of a band's indices; a strip may take it
    std::vector<uint8> work_;                // a row's pixels
};

}  // namespace kirto
