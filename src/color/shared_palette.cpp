#include "color/shared_palette.h"

#include <new>

#include "base/allocation.h"

namespace kirto {

std::shared_ptr<const Palette> DefaultPalette() {
    static const auto palette = std::make_shared<const Palette>();
    return palette;
}

std::shared_ptr<Palette> SharePalette(const Palette& palette) {
    if (AllocationShouldFail()) return nullptr;
    try {
        return std::make_shared<Palette>(palette);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

}  // namespace kirto
