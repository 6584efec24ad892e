#pragma once

#include <memory>
#include <utility>
#include <vector>

#include "base/types.h"
#include "base/work.h"
#include "kit/bitmap.h"
#include "picture/strip.h"
#include "picture/strip_list.h"

namespace kirto {

// The pixels of a frame: a list of strips, top down, each shared between all pictures that have the
// same rows there. So a picture costs what differs from others. Never changes; may be used by
// several threads.
class Picture {
  public:
    using Strips = StripList::Strips;

    // The bitmap's pixels. They are packed into indices where each strip has few enough colors, and
    // the bitmap is let go; else it is kept, and goes on being counted by its budget. budget:
    // counts what is packed; may be null. A bitmap that is not 32-bit has no rows here, but is
    // given back.
    static std::shared_ptr<const Picture> Of(std::shared_ptr<const BBitmap> bitmap,
                                             const std::shared_ptr<PixelBudget>& budget = nullptr);
    // Of strips of that width, in a 32-bit space. Null when the budget, if any, refuses what a
    // frame costs beside its pixels.
    static std::shared_ptr<const Picture> Of(Strips strips, int32 width, color_space space,
                                             std::shared_ptr<PixelBudget> budget);
    // All pixels are the same; width and height are above 0. Null as above.
    static std::shared_ptr<const Picture> Solid(uint32 pixel, int32 width, int32 height,
                                                color_space space,
                                                std::shared_ptr<PixelBudget> budget);
    // The same picture once more, in constant time. Null as above.
    static std::shared_ptr<const Picture> Again(const Picture& picture,
                                                std::shared_ptr<PixelBudget> budget);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    // 0 without pixels.
    int32 Width() const { return width_; }
    int32 Height() const { return height_; }
    // What the four bytes of a pixel mean.
    color_space ColorSpace() const { return space_; }
    // False for a bitmap without bits or in a space that is not 32-bit: there are no rows then.
    bool HasRows() const { return !AllStrips().empty(); }

    // y: 0 to Height() - 1. Only while this lives.
    PixelRow Row(int32 y) const;
    // All of a row's pixels, 4 bytes each.
    void ReadRow(int32 y, uint8* target) const { Row(y).Expand(width_, target); }
    const Strips& AllStrips() const { return strips_->All(); }
    // The first row of each strip.
    const std::vector<int32>& FirstRows() const { return strips_->FirstRows(); }
    // Whether this and the other one are made by Again() of one picture: their pixels are the same
    // then. Others may be the same, too.
    bool Repeats(const Picture& other) const;
    // The strip that row y is in, its position in the list. y: 0 to Height(), past which there is
    // none.
    size_t StripAt(int32 y) const;
    // Whether every pixel has alpha 255.
    bool IsOpaque() const;

    // The picture as a bitmap, in memory that no budget counts unless it is a bitmap's own.
    // InitCheck() tells when memory was short.
    std::shared_ptr<const BBitmap> ToBitmap() const;
    // The bitmap whose memory the pixels lie in; null where they were packed.
    const std::shared_ptr<const BBitmap>& KeptBitmap() const { return bitmap_; }

  private:
    Picture(int32 width, int32 height, color_space space, std::shared_ptr<const StripList> strips)
        : width_(width), height_(height), space_(space), strips_(std::move(strips)) {}
    // False when the budget, if any, refuses what a frame costs.
    bool LetCount(std::shared_ptr<PixelBudget> budget);

    const int32 width_;
    const int32 height_;
    const color_space space_;
    const std::shared_ptr<const StripList> strips_;
    std::shared_ptr<const BBitmap> bitmap_;
    std::shared_ptr<PixelBudget> budget_;  // holds a frame's cost; null where a bitmap does
};

// Copies as many bytes as both have, without regard to their rows. False when the work was stopped
// meanwhile. The target has bits, the picture rows.
bool CopyPixels(const Picture& source, BBitmap& target, const Work& work);

}  // namespace kirto
