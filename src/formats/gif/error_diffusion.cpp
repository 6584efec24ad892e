#include "formats/gif/error_diffusion.h"

#include <algorithm>

namespace kirto {

namespace {

constexpr int32 kFractionBits = 15;
constexpr uint32 kSevenSixteenths = 14336;
constexpr uint32 kThreeSixteenths = 6144;
constexpr uint32 kFiveSixteenths = 10240;
constexpr uint32 kOneSixteenth = 2048;

}  // namespace

ErrorDiffusion::ErrorDiffusion(int32 max_width)
    : entries_(static_cast<size_t>(std::max(max_width, 0)) + 2) {
    for (auto& row : rows_)
        row = AllocateArray<uint32>(entries_);
}

bool ErrorDiffusion::Ready() const {
    return std::all_of(rows_.begin(), rows_.end(), [](const auto& row) { return row != nullptr; });
}

void ErrorDiffusion::StartPicture() {
    carried_ = {};
    ClearRows();
}

void ErrorDiffusion::ClearRows() {
    for (auto& row : rows_)
        std::fill_n(row.get(), entries_, 0);
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
        const uint32 error = static_cast<uint32>(chosen[i] - corrected[i]);
        uint32* row = &rows_[i][column];
        const int32 carried = static_cast<int32>(error * kSevenSixteenths + row[1]);
        carried_[i] = static_cast<int16>(carried >> kFractionBits);
        row[-1] += error * kThreeSixteenths;
        row[0] += error * kFiveSixteenths;
        row[1] = error * kOneSixteenth;
    }
}

}  // namespace kirto
