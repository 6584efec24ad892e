#include "formats/gif/index_memo.h"

#include <algorithm>

namespace kirto {

void IndexMemo::Clear() {
    if (++generation_ < kGenerations) return;
    generation_ = 1;
    if (colors_) std::fill_n(colors_.get(), kPlaces, 0);
}

}  // namespace kirto
