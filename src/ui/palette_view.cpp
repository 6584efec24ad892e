#include "ui/palette_view.h"

#include <QAbstractItemView>

#include "document/command_codes.h"
#include "ui/panel_layout.h"

PaletteView::PaletteView(const kirto::ShownDocument& shown, const BMessenger& window,
                         QWidget* parent)
    : QGroupBox("Palette:", parent), shown_(shown) {
    setObjectName("PaletteView");
    menu = kirto::MakePopUpMenu(
        "PaletteMenuField",
        {{"BeOS system", kirto::kPaletteToSystem, kirto::kPaletteSystem},
         {"web safe", kirto::kPaletteToWebSafe, kirto::kPaletteWebSafe},
         {"greyscale", kirto::kPaletteToGreyscale, kirto::kPaletteGreyscale},
         {"first frame", kirto::kPaletteToFirstFrame, kirto::kPaletteFirstFrame},
         {"current frame", kirto::kPaletteToCurrentFrame, kirto::kPaletteCurrentFrame},
         {"from a file", kirto::kPaletteToFile, kirto::kPaletteFromFile}},
        window, this);
    dither = kirto::MakeCheckBox("Dither", "Dither", kirto::kSetDither, window, this);
    background_index =
        kirto::MakeField("Background index", kirto::kSetBackgroundIndex, window, this);
    transparent = kirto::MakeCheckBox("Transparent", "Transparent index:", kirto::kUseTransparent,
                                      window, this);
    transparent_index =
        kirto::MakeField("Transparent index", kirto::kSetTransparentIndex, window, this);

    background_index->SetText("0");
    transparent_index->SetText("0");
    menu->view()->setObjectName("WhichPalette");
    menu->setToolTip("The colors used to save all frames that have no palette of their own");
    dither->setToolTip("Approximate missing colors by dithering");
    background_index->setToolTip("Palette index of the background color");
    transparent->setToolTip("Make one color of the palette transparent");
    transparent_index->setToolTip("Palette index of the transparent color");

    auto* layout = new kirto::PanelLayout(this);
    layout->AddField("Mapping:", menu);
    layout->AddWide(dither);
    layout->AddField("Background index:", background_index);
    layout->AddField(transparent, transparent_index);
}

void PaletteView::AllowDither(bool allow) {
    if (!allow) dither->setChecked(false);
    dither->setEnabled(allow);
}

void PaletteView::UpdateDisplay() {
    const Palette& palette = *shown_.Current().palette;
    kirto::MarkPalette(*menu, palette.mode);
    dither->setChecked(palette.dither);
    AllowDither(palette.mode != kirto::kPaletteGreyscale);
    background_index->ShowText(QString::number(palette.background_index));
    transparent->setChecked(palette.use_transparent);
    transparent_index->setEnabled(palette.use_transparent);
    transparent_index->ShowText(QString::number(palette.transparent_index));
}

void PaletteView::ResetDisplay() {
    const Prefs& prefs = shown_.Settings();
    kirto::MarkPalette(*menu, prefs.palette_mapping);
    dither->setChecked(prefs.palette_dither);
    AllowDither(prefs.palette_mapping != kirto::kPaletteGreyscale);
    background_index->SetText(QString::number(prefs.palette_backgroundindex));
    transparent->setChecked(prefs.palette_usetransparent);
    transparent_index->setEnabled(prefs.palette_usetransparent);
    transparent_index->SetText(QString::number(prefs.palette_transparentindex));
}
