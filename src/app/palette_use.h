#pragma once

#include <array>
#include <atomic>
#include <memory>
#include <optional>

#include "animation/animation.h"
#include "base/types.h"
#include "color/palette.h"

namespace kirto {

// A palette, and how many pixels a save by the defined rules gives each of its colors, as far as
// nothing is dithered.
struct PaletteUse {
    std::shared_ptr<const Palette> palette;  // never null
    std::array<int64, 256> pixels{};

    // Of the frame, with the palette that it is saved with. frame: 0 to the number of frames - 1.
    static std::optional<PaletteUse> OfFrame(const Animation& animation, int32 frame,
                                             const std::atomic<bool>& stop);
    // Of all frames that are saved with the animation's palette.
    static std::optional<PaletteUse> OfAll(const Animation& animation,
                                           const std::atomic<bool>& stop);
    // Both: looks at each pixel; empty when it was stopped meanwhile or memory is short. Any
    // thread.

  private:
    static std::shared_ptr<const Palette> GlobalPalette(const Animation& animation);
    bool Add(const Frame& frame, const std::atomic<bool>& stop);
};

}  // namespace kirto
