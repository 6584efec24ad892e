#include "formats/gif/error_diffusion.h"

#include <algorithm>

namespace kirto {

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

}  // namespace kirto
