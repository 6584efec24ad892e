#include "ui/panels/palette_view.h"

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"

PaletteView::PaletteView(const kirto::ShownDocument& shown, const BMessenger& window,
                         QWidget* parent)
    : FieldPanel("PaletteView", UiText::tr("Palette:"), shown, window, parent) {
    menu = MakePaletteMenu(
        {{UiText::tr("BeOS system"), kirto::kPaletteToSystem, kirto::kPaletteSystem},
         {UiText::tr("web safe"), kirto::kPaletteToWebSafe, kirto::kPaletteWebSafe},
         {UiText::tr("greyscale"), kirto::kPaletteToGreyscale, kirto::kPaletteGreyscale},
         {UiText::tr("first frame"), kirto::kPaletteToFirstFrame, kirto::kPaletteFirstFrame},
         {UiText::tr("current frame"), kirto::kPaletteToCurrentFrame, kirto::kPaletteCurrentFrame},
         {UiText::tr("from a file"), kirto::kPaletteToFile, kirto::kPaletteFromFile}},
        UiText::tr("The colors used to save all frames that have no palette of their own"));
    Rows().AddField(UiText::tr("Mapping:"), menu);
    dither = MakeSwitch(kirto::kSetDither, UiText::tr("Approximate missing colors by dithering"));
    Rows().AddWide(dither);
    background_index = AddNumber(kirto::kSetBackgroundIndex, Unit::kNone,
                                 UiText::tr("Palette index of the background color"));
    transparent =
        MakeSwitch(kirto::kUseTransparent, UiText::tr("Make one color of the palette transparent"),
                   UiText::tr("Transparent index:"));
    transparent_index =
        AddNumber(kirto::kSetTransparentIndex, Unit::kNone,
                  UiText::tr("Palette index of the transparent color"), transparent);
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
