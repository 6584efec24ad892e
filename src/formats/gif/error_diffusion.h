#pragma once

#include <algorithm>
#include <array>

#include "base/allocation.h"
#include "base/types.h"

namespace kirto {

// Floyd-Steinberg error diffusion in 15-bit fixed point (weights 7, 3, 5 and 1 sixteenths) along
// the rows of one picture after the other. After R. W. Floyd and L. Steinberg, "An adaptive
// algorithm for spatial grey scale", 1976.
class ErrorDiffusion {
  public:
    using Components = std::array<int32, 3>;  // red, green, blue

    // max_width: pixels of the widest picture.
    explicit ErrorDiffusion(int32 max_width);
    // False when memory is short; then nothing below may be called.
    bool Ready() const;

    // Before each picture: forgets all errors.
    void StartPicture();
    // At a row's first pixel: nothing is carried over from the row before.
    void StartRow() { carried_ = {}; }
    // Forgets the errors meant for the next row, if that row is not a neighbor.
    void ClearRows();

    // The color less the carried error, within 0..255.
    Components Correct(const Components& color) const {
        Components corrected{};
        for (size_t i = 0; i < 3; ++i)
            corrected[i] = std::clamp(color[i] - carried_[i], 0, 255);
        return corrected;
    }
    // Spreads the error of pixel x: its palette color against its corrected color.
    void Diffuse(int32 x, const Components& chosen, const Components& corrected) {
        const size_t column = static_cast<size_t>(x) + 1;
        for (size_t i = 0; i < 3; ++i) {
            const uint32 error = static_cast<uint32>(chosen[i] - corrected[i]);
            uint32* row = &rows_[i][column];
            const int32 carried = static_cast<int32>(error * kSevenSixteenths + row[1]);
            carried_[i] = static_cast<int16>(carried >> kFractionBits);
            row[-1] += error * kThreeSixteenths;
            row[0] += error * kFiveSixteenths;
            row[1] = error * kOneSixteenth;
        }
    }

  private:
    static constexpr int32 kFractionBits = 15;
    static constexpr uint32 kSevenSixteenths = 14336;
    static constexpr uint32 kThreeSixteenths = 6144;
    static constexpr uint32 kFiveSixteenths = 10240;
    static constexpr uint32 kOneSixteenth = 2048;

    std::array<int16, 3> carried_{};
    const size_t entries_;  // of each row
    // Per component, the errors for the next row, fixed point; entry 0 is column -1. The two
    // leftmost columns, and those beside pixels that are never diffused, add up for as long as the
    // picture is high: the sums wrap, which signed numbers may not.
    std::array<AllocatedArray<uint32>, 3> rows_;
};

}  // namespace kirto
