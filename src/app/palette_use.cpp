#include "app/palette_use.h"

#include <new>

#include "base/byte_order.h"
#include "base/debug_line.h"
#include "formats/gif/pixel_mapper.h"

namespace kirto {

namespace {

const Picture* PictureOf(const FramePointer& frame) {
    return frame ? frame->bitmap.get() : nullptr;
}

}  // namespace

// With the colors that a save would find.
std::shared_ptr<const Palette> PaletteUse::GlobalPalette(const Animation& animation) {
    const DebugLineCapture lines;
    Palette palette = *animation.palette;
    if (!palette.UpdateIfNeeded(PictureOf(animation.FirstFrame()),
                                PictureOf(animation.CurrentFrame())))
        return animation.palette;
    return std::make_shared<const Palette>(palette);
}

bool PaletteUse::Add(const Frame& frame, const std::atomic<bool>& stop) {
    PixelMapper mapper(LowByte(palette->transparent_index), false, 0);
    mapper.StartPicture(*palette, true);
    for (int32 y = 0; y < frame.height; ++y) {
        if (stop) return false;
        for (const uint8 index : mapper.MapRow(frame.bitmap.get(), y, frame.width))
            ++pixels[index];
    }
    return true;
}

std::optional<PaletteUse> PaletteUse::OfFrame(const Animation& animation, int32 frame,
                                              const std::atomic<bool>& stop) {
    try {
        const FramePointer shown = animation.frames.At(frame);
        PaletteUse use;
        use.palette = shown->local_palette ? shown->palette : GlobalPalette(animation);
        return use.Add(*shown, stop) ? std::optional(use) : std::nullopt;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::optional<PaletteUse> PaletteUse::OfAll(const Animation& animation,
                                            const std::atomic<bool>& stop) {
    try {
        PaletteUse use;
        use.palette = GlobalPalette(animation);
        for (const FramePointer& frame : animation.frames) {
            if (!frame->local_palette && !use.Add(*frame, stop)) return std::nullopt;
        }
        return use;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

}  // namespace kirto
