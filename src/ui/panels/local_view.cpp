#include "ui/panels/local_view.h"

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"

namespace {

QString ColorsText(int32 colors) {
    if (colors == 0) return UiText::tr("Unknown");
    return UiText::Count("1 color", "%n colors", colors);
}

}  // namespace

LocalView::LocalView(const kirto::ShownDocument& shown, const BMessenger& window, QWidget* parent)
    : FieldPanel("LocalView", UiText::tr("Current Frame"), shown, window, parent) {
    AddLabels();
    AddFields();
    AddModes();
    LocalView::Show({}, true);
}

void LocalView::AddLabels() {
    frame_name = kirto::MakeLabel("FrameName", UiText::tr("None"), this);
    // A file's name may be long, and must not make the panel wide.
    frame_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    frame_size = kirto::MakeLabel("FrameSize", UiText::tr("Unknown"), this);
    frame_colors = kirto::MakeLabel("FrameColors", UiText::tr("Unknown"), this);
    for (QLabel* label : {frame_name, frame_size, frame_colors})
        Rows().AddWide(label);
}

void LocalView::AddFields() {
    x_offset =
        AddNumber(kirto::kFrameSetXOffset, Unit::kPixels,
                  UiText::tr("Distance of the frame from the animation's left edge, in pixels"),
                  UiText::tr("X offset:"));
    y_offset =
        AddNumber(kirto::kFrameSetYOffset, Unit::kPixels,
                  UiText::tr("Distance of the frame from the animation's top edge, in pixels"),
                  UiText::tr("Y offset:"));
    pause = MakeSwitch(kirto::kFrameUsePause, UiText::tr("Give the frame a pause of its own"),
                       UiText::tr("Use pause"));
    Rows().AddWide(pause);
    pause_length =
        AddNumber(kirto::kFrameSetPauseLength, Unit::kPause,
                  UiText::tr("Length of the frame's pause, in the unit chosen in the preferences"),
                  UiText::tr("Length:"), pause);
    AddPauseText();
    palette =
        MakeSwitch(kirto::kFrameUsePalette, UiText::tr("Save the frame with a palette of its own"),
                   UiText::tr("Local palette"));
    palette_menu = MakePaletteMenu(
        {{UiText::tr("BeOS system"), kirto::kFrameSystem, kirto::kPaletteSystem},
         {UiText::tr("web safe"), kirto::kFrameWebSafe, kirto::kPaletteWebSafe},
         {UiText::tr("greyscale"), kirto::kFrameGreyscale, kirto::kPaletteGreyscale},
         {UiText::tr("optimal"), kirto::kFrameOptimal, kirto::kPaletteOptimal},
         {UiText::tr("from a file"), kirto::kFramePaletteToFile, kirto::kPaletteFromFile}},
        UiText::tr("The colors of the frame's own palette"));
    palette_menu->setAccessibleName(UiText::tr("Local palette colors"));
    kirto::SwitchBy(*palette, *palette_menu);
    Rows().AddField(palette, palette_menu);
}

void LocalView::AddModes() {
    thumbnail_mode = kirto::MakeRadioButton("ThumbnailMode", UiText::tr("Thumbnail"),
                                            kirto::kThumbnailMode, Window(), this);
    frame_list_mode = kirto::MakeRadioButton("FramelistMode", UiText::tr("Frame list"),
                                             kirto::kFrameListMode, Window(), this);
    thumbnail_mode->setToolTip(UiText::tr("Show the frames as pictures"));
    frame_list_mode->setToolTip(
        UiText::tr("Show the frames as a list, with a preview of the current one"));
    Rows().AddGap();
    Rows().AddWide(kirto::MakeLabel("ModeTitle", UiText::tr("Mode"), this));
    Rows().AddPair(thumbnail_mode, frame_list_mode);
}

void LocalView::Show(const kirto::Animation& animation, bool end_edits) {
    const kirto::FramePointer frame = animation.CurrentFrame();
    FieldPanel::Show(animation, end_edits || !frame);
    if (!frame) {
        kirto::ShowText(*frame_name, UiText::tr("None"));
        frame_name->setToolTip({});
        kirto::ShowText(*frame_size, UiText::tr("Unknown"));
        kirto::ShowText(*frame_colors, UiText::tr("Unknown"));
        return;
    }
    const QString name = QString::fromStdString(frame->name);
    kirto::ShowText(*frame_name, name);
    frame_name->setToolTip("<p>" + name.toHtmlEscaped() + "</p>");
    kirto::ShowText(*frame_size, QString("%1 x %2").arg(frame->width).arg(frame->height));
    kirto::ShowText(*frame_colors, ColorsText(frame->palette->unique_colors));
    kirto::MarkPalette(*palette_menu, frame->palette->mode);
}

bool LocalView::ChooseKind(uint32) {
    return Shown().CurrentFrame() != nullptr;
}

void LocalView::ShowMode(bool frame_list) {
    QRadioButton* button = frame_list ? frame_list_mode : thumbnail_mode;
    button->setChecked(true);
}
