#include "ui/panels/palette_view.h"

#include "document/command_codes.h"

PaletteView::PaletteView(const kirto::ShownDocument& shown, const BMessenger& window,
                         QWidget* parent)
    : FieldPanel("PaletteView", "Palette:", shown, window, parent) {
    menu = MakePaletteMenu(
        {{"BeOS system", kirto::kPaletteToSystem, kirto::kPaletteSystem},
         {"web safe", kirto::kPaletteToWebSafe, kirto::kPaletteWebSafe},
         {"greyscale", kirto::kPaletteToGreyscale, kirto::kPaletteGreyscale},
         {"first frame", kirto::kPaletteToFirstFrame, kirto::kPaletteFirstFrame},
         {"current frame", kirto::kPaletteToCurrentFrame, kirto::kPaletteCurrentFrame},
         {"from a file", kirto::kPaletteToFile, kirto::kPaletteFromFile}},
        "The colors used to save all frames that have no palette of their own");
    Rows().AddField("Mapping:", menu);
    dither = MakeSwitch(kirto::kSetDither, "Approximate missing colors by dithering");
    Rows().AddWide(dither);
    background_index =
        AddNumber(kirto::kSetBackgroundIndex, Unit::kNone, "Palette index of the background color");
    transparent = MakeSwitch(kirto::kUseTransparent, "Make one color of the palette transparent",
                             "Transparent index:");
    transparent_index = AddNumber(kirto::kSetTransparentIndex, Unit::kNone,
                                  "Palette index of the transparent color", transparent);
}

void PaletteView::AllowDither(bool allow) {
    if (!allow) dither->setChecked(false);
    dither->setEnabled(allow);
}

void PaletteView::Show(const kirto::Animation& animation, bool end_edits) {
    FieldPanel::Show(animation, end_edits);
    kirto::MarkPalette(*menu, animation.palette->mode);
    AllowDither(animation.palette->mode != kirto::kPaletteGreyscale);
}

bool PaletteView::ChooseKind(uint32 command) {
    AllowDither(command != kirto::kPaletteToGreyscale);
    return true;
}
