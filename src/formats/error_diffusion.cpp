#include "formats/error_diffusion.h"

#include <algorithm>

namespace kirto {

namespace {

constexpr int32 kFractionBits = 15;
constexpr int32 kSevenSixteenths = 14336;
constexpr int32 kThreeSixteenths = 6144;
constexpr int32 kFiveSixteenths = 10240;
constexpr int32 kOneSixteenth = 2048;

}  // namespace

ErrorDiffusion::ErrorDiffusion(int32 max_width) {
    for (auto& row : rows_)
        row.resize(static_cast<size_t>(std::max(max_width, 0)) + 2);
}

void ErrorDiffusion::StartPicture() {
    carried_ = {};
    ClearRows();
}

void ErrorDiffusion::ClearRows() {
    for (auto& row : rows_)
        std::fill(row.begin(), row.end(), 0);
}

ErrorDiffusion::Components ErrorDiffusion::Correct(const Components& color) const {
    Components corrected{};
    for (size_t i = 0; i < 3; ++i)
        corrected[i] = std::clamp(color[i] - carried_[i], 0, 255);
    return corrected;
}

void ErrorDiffusion::Diffuse(int32 x, const Components& chosen, const Components& corrected) {
    const size_t column = static_cast<size_t>(x) + 1;
    for (size_t i = 0; i < 3; ++i) {
        const int32 error = chosen[i] - corrected[i];
        int32* row = &rows_[i][column];
        carried_[i] = (error * kSevenSixteenths + row[1]) >> kFractionBits;
        // Column -1 is never read back; leaving it out keeps it from growing with the height.
        if (x > 0) row[-1] += error * kThreeSixteenths;
        row[0] += error * kFiveSixteenths;
        row[1] = error * kOneSixteenth;
    }
}

}  // namespace kirto
