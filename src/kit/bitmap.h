#pragma once

#include <memory>

#include "base/pixel_budget.h"
#include "base/types.h"
#include "kit/bitmap_memory.h"
#include "kit/rect.h"

// A picture in memory: bounds, color space and rows of bytes, zero-filled when made. Not tied to a
// thread; whoever shares it (frames share theirs) treats the pixels as read-only.
class BBitmap {
  public:
    // Bounds that cover no pixel, a side or a row of bytes past int32, a reservation that the
    // budget refuses and failed allocations all give a bitmap without bits. No budget: nothing is
    // counted.
    BBitmap(BRect bounds, color_space space, std::shared_ptr<kirto::PixelBudget> budget = nullptr);
    // A picture of a 32-bit space over the pixels of a file in memory. Without bits also where the
    // file has fewer or may still change.
    static std::shared_ptr<BBitmap> OnSealedFile(BRect bounds, color_space space,
                                                 const kirto::FileDescriptor& file,
                                                 std::shared_ptr<kirto::PixelBudget> budget);
    ~BBitmap();
    BBitmap(const BBitmap&) = delete;
    BBitmap& operator=(const BBitmap&) = delete;

    // B_OK, or B_NO_MEMORY when there are no bits.
    status_t InitCheck() const { return bits_ ? B_OK : B_NO_MEMORY; }

    BRect Bounds() const { return bounds_; }
    color_space ColorSpace() const { return space_; }
    // Whole pixels across and down; 0 without bits.
    int32 Width() const { return bits_ ? width_ : 0; }
    int32 Height() const { return bits_ ? height_ : 0; }

    // The first row's first byte, or null.
    uint8* Bits() { return bits_.Get(); }
    const uint8* Bits() const { return bits_.Get(); }
    uint8* Row(int32 y) { return bits_.Get() + static_cast<size_t>(y) * BytesPerRow(); }
    const uint8* Row(int32 y) const { return bits_.Get() + static_cast<size_t>(y) * BytesPerRow(); }
    // Bytes of all rows; 0 without bits.
    size_t BitsLength() const { return bits_ ? bytes_ : 0; }
    // Bytes from one row's start to the next one's. 32-bit spaces are packed: 4 x width.
    size_t BytesPerRow() const { return bytes_per_row_; }

  private:
    // file: null for memory of the process.
    BBitmap(BRect bounds, color_space space, const kirto::FileDescriptor* file,
            std::shared_ptr<kirto::PixelBudget> budget);
    void ReleaseBudget();

    BRect bounds_;
    color_space space_;
    int32 width_ = 0;
    int32 height_ = 0;
    size_t bytes_per_row_ = 0;
    size_t bytes_ = 0;
    std::shared_ptr<kirto::PixelBudget> budget_;
    kirto::BitmapMemory bits_;
};

namespace kirto {

// True for the four color spaces of 4 bytes a pixel.
bool Is32Bit(color_space space);

// True for the two 32-bit spaces in the order blue, green, red, alpha.
bool IsLittleEndian(color_space space);

// True for the two 32-bit spaces in the order alpha, red, green, blue.
bool IsBigEndian(color_space space);

}  // namespace kirto
