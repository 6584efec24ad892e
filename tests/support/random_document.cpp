#include "support/random_document.h"

#include <cmath>

#include "support/test_support.h"

namespace kirto::test {

namespace {

rgb_color AnyColor(ChoiceSource& choices) {
    return {static_cast<uint8>(choices.Below(256)), static_cast<uint8>(choices.Below(256)),
            static_cast<uint8>(choices.Below(256)), 255};
}

// Palettes as the editor has them: built in, made for a picture, or read from a file.
void ChoosePalette(ChoiceSource& choices, Palette* palette) {
    const int32 kind = choices.Between(0, 5);
    if (kind <= kPaletteGreyscale) {
        palette->Set(kind);
        return;
    }
    palette->mode = kind == 3 ? kPaletteFromFile : kPaletteOptimal;
    palette->bits = choices.Between(1, 8);
    palette->size = 1 << palette->bits;
    // Few levels a component give entries that are equal, and pixels halfway between two.
    const uint32 levels = choices.OneIn(3) ? 3 : 256;
    for (size_t i = 0; i < static_cast<size_t>(palette->size); ++i) {
        const rgb_color color = AnyColor(choices);
        palette->colors[i] = {static_cast<uint8>(color.red % levels),
                              static_cast<uint8>(color.green % levels),
                              static_cast<uint8>(color.blue % levels), 255};
    }
}

// The palette's colours that are found again at their own index, which is not the transparent one;
// the first colour if there are none.
std::vector<rgb_color> FittingColors(const Palette& palette, const Palette& global) {
    std::vector<rgb_color> colors;
    for (int32 i = 0; i < palette.size; ++i) {
        const rgb_color color = palette.ColorForIndex(i);
        const bool transparent = global.use_transparent && global.transparent_index == i;
        if (palette.IndexForColor(color) == i && !transparent) colors.push_back(color);
    }
    if (colors.empty()) colors.push_back(palette.ColorForIndex(0));
    return colors;
}

// How the pixels of a frame are chosen: runs of some colours, so that strings of all lengths occur.
class PixelChoices {
  public:
    PixelChoices(ChoiceSource& choices, std::vector<rgb_color> colors, bool transparent)
        : choices_(choices),
          colors_(std::move(colors)),
          transparent_one_in_(transparent ? 4 : 0),
          run_bound_(choices.OneIn(2) ? 1 : 20) {}

    uint32 Next() {
        if (run_left_ == 0) {
            argb_ = Choose();
            run_left_ = choices_.Below(run_bound_) + 1;
        }
        --run_left_;
        return argb_;
    }

  private:
    uint32 Choose() {
        if (transparent_one_in_ > 0 && choices_.OneIn(transparent_one_in_)) {
            return choices_.Below(255) << 24 | choices_.Below(256);
        }
        const rgb_color color = colors_.empty()
                                    ? AnyColor(choices_)
                                    : colors_[choices_.Below(static_cast<uint32>(colors_.size()))];
        return 0xFF000000 | ColorKey(color.red, color.green, color.blue);
    }

    ChoiceSource& choices_;
    const std::vector<rgb_color> colors_;
    const uint32 transparent_one_in_;  // 0: never
    const uint32 run_bound_;
    uint32 argb_ = 0;
    uint32 run_left_ = 0;
};

color_space ChooseColorSpace(ChoiceSource& choices, const DocumentStyle& style) {
    static constexpr color_space kSpaces[] = {B_RGB32, B_RGBA32, B_RGB32_BIG, B_RGBA32_BIG,
                                              B_CMAP8};
    return kSpaces[choices.Below(style.oddities ? 5 : 4)];
}

void ChoosePicture(ChoiceSource& choices, const DocumentStyle& style, const Palette& global,
                   bool first, Frame* frame) {
    const Palette& palette = frame->local_palette ? *frame->palette : global;
    const bool opaque = !style.transparency || (style.opaque_start && first);
    const bool transparent =
        !opaque && (style.oddities || global.use_transparent) && choices.OneIn(2);
    std::vector<rgb_color> colors;
    if (style.fitting_colors) colors = FittingColors(palette, global);
    PixelChoices pixels(choices, std::move(colors), transparent);
    std::vector<uint32> argb;
    for (int32 i = 0; i < frame->width * frame->height; ++i)
        argb.push_back(pixels.Next());
    const color_space space = ChooseColorSpace(choices, style);
    if (Is32Bit(space)) {
        frame->bitmap = FramePictureOf(frame->width, frame->height, argb, space);
    } else {
        frame->bitmap = Picture::Of(
            std::make_shared<BBitmap>(BRect::OfSize(frame->width, frame->height), space));
    }
}

void ChoosePlace(ChoiceSource& choices, const DocumentStyle& style, const Animation& animation,
                 bool first, Frame* frame) {
    frame->width = animation.width;
    frame->height = animation.height;
    if (choices.OneIn(3) || (style.opaque_start && first)) return;
    frame->width = choices.Between(1, animation.width);
    frame->height = choices.Between(1, animation.height);
    const bool anywhere = style.oddities && choices.OneIn(4);
    frame->x_offset = choices.Between(0, anywhere ? 70000 : animation.width - frame->width);
    frame->y_offset = choices.Between(0, anywhere ? 70000 : animation.height - frame->height);
}

double ChoosePause(ChoiceSource& choices, const DocumentStyle& style, bool in_seconds) {
    const int32 hundredths = choices.OneIn(2) ? choices.Between(1, 30) : choices.Between(1, 65535);
    double pause = in_seconds ? hundredths / 100.0 : hundredths;
    if (style.oddities && choices.OneIn(4)) pause = pause * 1.37 - 5;
    return pause;
}

void ChooseGlobals(ChoiceSource& choices, const DocumentStyle& style, const Prefs& prefs,
                   Animation& animation) {
    animation.width = choices.Between(1, style.max_side);
    animation.height = choices.Between(1, style.max_side);
    animation.use_loop = !choices.OneIn(3);
    animation.loop_count = choices.Between(0, style.oddities ? 70000 : 65535);
    // A loaded frame without a pause of its own follows the commonest pause, so a mixture of some
    // pauses and none does not come back as it was: all frames have one, or none has.
    animation.use_pause = true;
    animation.pause_length = ChoosePause(choices, style, prefs.global_pauseinseconds);
    kirto::EditPalette(animation, [&](Palette& palette) {
        ChoosePalette(choices, &palette);
        palette.background_index = choices.Between(0, 255);
        palette.use_transparent = choices.OneIn(2);
        const bool any_index = palette.use_transparent || style.oddities;
        palette.transparent_index = any_index ? choices.Between(0, choices.OneIn(2) ? 7 : 255) : 0;
        palette.dither = prefs.palette_dither;
    });
}

}  // namespace

uint32 ByteChoices::Next() {
    if (left_ == 0) return 0;
    --left_;
    return *bytes_++;
}

uint32 ByteChoices::Below(uint32 bound) {
    if (bound <= 1) return 0;
    const uint32 low = Next();
    return (bound <= 256 ? low : Next() << 8 | low) % bound;
}

void ChooseSettings(ChoiceSource& choices, const DocumentStyle& style, Prefs* prefs) {
    prefs->animation_gifdisposal = choices.Between(style.oddities ? -1 : 0, 4);
    prefs->animation_gifinterlaced = choices.OneIn(2);
    prefs->animation_gifcomment = choices.OneIn(2);
    prefs->animation_gifloadfullframe = choices.OneIn(2);
    prefs->global_pauseinseconds = choices.OneIn(2);
    prefs->palette_dither = choices.OneIn(2);
    prefs->thumbnail_drawtransparent = choices.OneIn(2);
}

void FillDocument(ChoiceSource& choices, const DocumentStyle& style, AnimationDocument& document) {
    Animation animation = *document.Current();
    ChooseGlobals(choices, style, document.prefs, animation);
    const bool without_pauses = choices.OneIn(4);
    if (without_pauses) animation.use_pause = false;
    const int32 count = choices.Between(1, style.max_frames);
    for (int32 i = 0; i < count; ++i) {
        Frame frame;
        ChoosePlace(choices, style, animation, i == 0, &frame);
        frame.use_pause = !without_pauses && choices.OneIn(2);
        frame.pause_length = ChoosePause(choices, style, document.prefs.global_pauseinseconds);
        frame.local_palette = style.local_palettes && choices.OneIn(3);
        if (frame.local_palette) {
            Palette palette;
            ChoosePalette(choices, &palette);
            frame.palette = SharePalette(palette);
        }
        ChoosePicture(choices, style, *animation.palette, i == 0, &frame);
        InsertFrame(animation, i, std::make_shared<const Frame>(std::move(frame)));
    }
    document.Commit(std::move(animation));
}

int32 DelayOf(const AnimationDocument& document, const Frame& frame) {
    const auto animation = document.Current();
    double pause = animation->use_pause ? animation->pause_length : 0;
    if (frame.use_pause) pause = frame.pause_length;
    return static_cast<int32>(
        std::lround(document.prefs.global_pauseinseconds ? pause * 100 : pause));
}

}  // namespace kirto::test
