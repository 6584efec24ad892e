#pragma once

#include "base/allocation.h"
#include "base/types.h"

namespace kirto {

// Floyd-Steinberg error diffusion in 15-bit fixed point (weights 7, 3, 5 and 1 sixteenths) along
// the rows of one picture after the other. After R. W. Floyd and L. Steinberg, "An adaptive
// algorithm for spatial grey scale", 1976.
class ErrorDiffusion {
  public:
    // Red, green, blue and a fourth that is nobody's, in any order: four at a time are what a
    // processor takes.
    using Components = int32 __attribute__((vector_size(16)));
    // What a row's last pixel leaves to the next one. Nothing at a row's first pixel.
    using Carried = Components;
    // A row may be begun before the one above it is done, so many pixels behind it: nearer ones
    // still wait for errors from there.
    static constexpr int32 kLag = 3;

    // max_width: pixels of the widest picture.
    explicit ErrorDiffusion(int32 max_width);
    // False when memory is short; then nothing below may be called.
    bool Ready() const;

    // Forgets the errors meant for the next row: before each picture, and if that row is not a
    // neighbor.
    void ClearRow();

    // The color less the carried error, within 0..255.
    static Components Correct(Components color, Carried carried) {
        const Components least{};
        const Components most = least + 255;
        const Components corrected = color - carried;
        const Components above = corrected < least ? least : corrected;
        return above > most ? most : above;
    }
    // Spreads the error of pixel x: its palette color against its corrected color.
    void Diffuse(int32 x, Components chosen, Components corrected, Carried* carried) {
        Errors* const row = &row_[static_cast<size_t>(x) + 1];
        const Errors sixteenth = reinterpret_cast<Errors>(chosen - corrected)
                                 << (kFractionBits - 4);
        const Errors sum = (sixteenth << 3) - sixteenth + row[1];
        // Above the fraction, 16 bits are kept.
        *carried = reinterpret_cast<Components>(sum << (16 - kFractionBits)) >> 16;
        row[-1] += (sixteenth << 1) + sixteenth;
        row[0] += (sixteenth << 2) + sixteenth;
        row[1] = sixteenth;
    }

  private:
    static constexpr int32 kFractionBits = 15;

    using Errors = uint32 __attribute__((vector_size(16)));  // as Components, fixed point

    const size_t entries_;  // of the row
    // The errors for the next row; entry 0 is column -1. The two leftmost columns, and those beside
    // pixels that are never diffused, add up for as long as the picture is high: the sums wrap,
    // which signed numbers may not.
    AllocatedArray<Errors> row_;
};

}  // namespace kirto
