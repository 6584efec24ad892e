#include "resources/qt/layout_texts.h"

#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr const char* kTexts[] = {
    UiText::Later("Preferences"),
    UiText::Later("Global"),
    UiText::Later("Palette"),
    UiText::Later("Thumbnail"),
    UiText::Later("Animation"),
    UiText::Later("Miscellaneous"),
    UiText::Later("Compatibility"),
    UiText::Later("Control Defaults"),
    UiText::Later("Width in pixels:"),
    UiText::Later("Height in pixels:"),
    UiText::Later("Pause this long between frames:"),
    UiText::Later("Loop this many times (0 is infinitely):"),
    UiText::Later("Other Settings"),
    UiText::Later("Set size of animation from first frame inserted"),
    UiText::Later("Pause length should be measured in:"),
    UiText::Later("Hundredths of a second (GIF standard)"),
    UiText::Later("Seconds"),
    UiText::Later("Mapping Defaults"),
    UiText::Later("The global palette should use:"),
    UiText::Later("The web safe palette (standard 216 colors)"),
    UiText::Later("The BeOS system palette (256 colors)"),
    UiText::Later("A greyscale palette (256 levels of grey)"),
    UiText::Later("A palette from:"),
    UiText::Later("Other Defaults"),
    UiText::Later("Use dithering"),
    UiText::Later("Background index:"),
    UiText::Later("Transparent index from global palette:"),
    UiText::Later("Settings"),
    UiText::Later("When a frame is inserted, the thumbnail height:"),
    UiText::Later("Should be set to the full size of the first frame"),
    UiText::Later("Should be set to half the size of the first frame"),
    UiText::Later("Should be set to this value:"),
    UiText::Later("Should not change"),
    UiText::Later("Maximum thumbnail height:"),
    UiText::Later("Minimum thumbnail height:"),
    UiText::Later("Draw frames with transparency"),
    UiText::Later("Advanced GIF Settings"),
    UiText::Later("After each frame, the GIF decoder should:"),
    UiText::Later("Take no action (default)"),
    UiText::Later("Leave the current frame"),
    UiText::Later("Restore the background color"),
    UiText::Later("Restore the previous frame (rarely supported)"),
    UiText::Later("Write interlaced frames"),
    UiText::Later("Write \"Made with Kirto on BeOS\" comment"),
    UiText::Later("If the animation uses delta compression, assemble each frame"),
    UiText::Later("On startup, use:"),
    UiText::Later("Thumbnail mode"),
    UiText::Later("Frame list mode"),
    UiText::Later("Save and restore main window size and position"),
    UiText::Later("Write temporary files to:"),
    UiText::Later("Browsers"),
    UiText::Later("Read and save as browsers show it"),
    UiText::Later("Frames of more than 256 colors are saved then"),
    UiText::Later("Without dithering"),
    UiText::Later("Dithered as best suits each frame (Floyd-Steinberg)"),
    UiText::Later("Dithered so that what stands still does not flicker"),
    UiText::Later("In the same colors for all frames"),
    UiText::Later("Keep these colors:"),
    UiText::Later("Lay soft edges on:"),
    UiText::Later("Transparent below alpha:"),
    UiText::Later("Save"),
    UiText::Later("Cancel"),
};

}  // namespace

std::span<const char* const> LayoutTexts() {
    return kTexts;
}

}  // namespace kirto
