// cgif: encoding of palette indices, without the steps that make its files smaller.
#include <cgif.h>

#include "peers.h"

namespace kirto::bench {

namespace {

int AppendBytes(void* target, const uint8_t* bytes, size_t count) {
    auto* gif = static_cast<std::vector<uint8>*>(target);
    gif->insert(gif->end(), bytes, bytes + count);
    return 0;
}

}  // namespace

bool EncodeWithCgif(IndexedAnimation& animation, std::vector<uint8>* gif) {
    std::vector<uint8> colors;
    for (const rgb_color& color : animation.colors)
        colors.insert(colors.end(), {color.red, color.green, color.blue});
    CGIF_Config config{};
    config.pGlobalPalette = colors.data();
    config.attrFlags = CGIF_ATTR_IS_ANIMATED;
    config.width = static_cast<uint16>(animation.width);
    config.height = static_cast<uint16>(animation.height);
    config.numGlobalPaletteEntries = 256;
    config.pWriteFn = AppendBytes;
    config.pContext = gif;
    CGIF* encoder = cgif_newgif(&config);
    if (!encoder) return false;
    for (IndexedImage& image : animation.images) {
        CGIF_FrameConfig frame{};
        frame.pImageData = image.indices.data();
        frame.delay = 5;
        if (cgif_addframe(encoder, &frame) != CGIF_OK) break;
    }
    return cgif_close(encoder) == CGIF_OK;
}

}  // namespace kirto::bench
