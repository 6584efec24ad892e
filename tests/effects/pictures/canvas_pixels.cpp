#include "effects/pictures/canvas_pixels.h"

#include "support/test_support.h"

namespace kirto::test {

uint32 PixelOnPlane(const Frame& frame, int32 x, int32 y) {
    if (x < frame.x_offset || y < frame.y_offset) return 0;
    const rgb_color color = PixelColor(frame.bitmap.get(), x - frame.x_offset, y - frame.y_offset);
    if (color.alpha == 0) return 0;
    return static_cast<uint32>(color.alpha) << 24 | static_cast<uint32>(color.red) << 16 |
           static_cast<uint32>(color.green) << 8 | color.blue;
}

void FillSomehow(ChoiceSource& choices, AnimationDocument& document) {
    DocumentStyle style;
    style.max_side = 24;
    style.fitting_colors = false;
    style.oddities = true;
    FillDocument(choices, style, document);
    for (int32 i = 0; i < document.FrameCount(); ++i) {
        FrameEditOf(document, i)->x_offset = choices.Between(0, 20);
        FrameEditOf(document, i)->y_offset = choices.Between(0, 20);
    }
    const Frame copied = *document.FrameAt(0);
    Frame copy("copy", copied.width, copied.height);
    copy.bitmap = copied.bitmap;
    document.InsertFrame(document.FrameCount(), copy);
    document.Select(choices.Between(0, document.FrameCount() - 1));
    document.SetModified(false);
}

}  // namespace kirto::test
