#include "document/new_animation.h"

namespace kirto {

Animation NewAnimation(const Prefs& settings) {
    Animation animation;
    animation.width = settings.global_width;
    animation.height = settings.global_height;
    animation.use_pause = settings.global_usepause;
    animation.pause_length = settings.global_pauselength;
    animation.use_loop = settings.global_useloop;
    animation.loop_count = settings.global_loopcount;
    EditPalette(animation, [&settings](Palette& palette) {
        // Before the kind, which may clear it.
        palette.dither = settings.palette_dither;
        palette.Set(settings.palette_mapping);
        palette.use_transparent = settings.palette_usetransparent;
        palette.transparent_index = settings.palette_transparentindex;
        palette.background_index = settings.palette_backgroundindex;
    });
    return animation;
}

}  // namespace kirto
