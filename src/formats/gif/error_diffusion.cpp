#include "formats/gif/error_diffusion.h"

#include <algorithm>

namespace kirto {

ErrorDiffusion::ErrorDiffusion(int32 max_width)
    : entries_(static_cast<size_t>(std::max(max_width, 0)) + 2),
      row_(AllocateArray<Errors>(entries_)) {}

bool ErrorDiffusion::Ready() const {
    return row_ != nullptr;
}

void ErrorDiffusion::ClearRow() {
    std::fill_n(row_.get(), entries_, Errors{});
}

}  // namespace kirto
