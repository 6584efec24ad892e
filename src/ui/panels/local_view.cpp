#include "ui/panels/local_view.h"

#include "document/command_codes.h"

namespace {

QString ColorsText(int32 colors) {
    if (colors == 0) return "Unknown";
    if (colors == 1) return "1 color";
    return QString("%1 colors").arg(colors);
}

}  // namespace

LocalView::LocalView(const kirto::ShownDocument& shown, const BMessenger& window, QWidget* parent)
    : FieldPanel("LocalView", "Current Frame", shown, window, parent) {
    AddLabels();
    AddFields();
    AddModes();
    LocalView::Show({}, true);
}

void LocalView::AddLabels() {
    frame_name = kirto::MakeLabel("FrameName", "None", this);
    // A file's name may be long, and must not make the panel wide.
    frame_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    frame_size = kirto::MakeLabel("FrameSize", "Unknown", this);
    frame_colors = kirto::MakeLabel("FrameColors", "Unknown", this);
    for (QLabel* label : {frame_name, frame_size, frame_colors})
        Rows().AddWide(label);
}

void LocalView::AddFields() {
    x_offset =
        AddNumber(kirto::kFrameSetXOffset, Unit::kPixels,
                  "Distance of the frame from the animation's left edge, in pixels", "X offset:");
    y_offset =
        AddNumber(kirto::kFrameSetYOffset, Unit::kPixels,
                  "Distance of the frame from the animation's top edge, in pixels", "Y offset:");
    pause = MakeSwitch(kirto::kFrameUsePause, "Give the frame a pause of its own", "Use pause");
    Rows().AddWide(pause);
    pause_length = AddNumber(kirto::kFrameSetPauseLength, Unit::kPause,
                             "Length of the frame's pause, in the unit chosen in the preferences",
                             "Length:", pause);
    AddPauseText();
    palette = MakeSwitch(kirto::kFrameUsePalette, "Save the frame with a palette of its own",
                         "Local palette");
    palette_menu =
        MakePaletteMenu({{"BeOS system", kirto::kFrameSystem, kirto::kPaletteSystem},
                         {"web safe", kirto::kFrameWebSafe, kirto::kPaletteWebSafe},
                         {"greyscale", kirto::kFrameGreyscale, kirto::kPaletteGreyscale},
                         {"optimal", kirto::kFrameOptimal, kirto::kPaletteOptimal},
                         {"from a file", kirto::kFramePaletteToFile, kirto::kPaletteFromFile}},
                        "The colors of the frame's own palette");
    palette_menu->setAccessibleName("Local palette colors");
    kirto::SwitchBy(*palette, *palette_menu);
    Rows().AddField(palette, palette_menu);
}

void LocalView::AddModes() {
    thumbnail_mode =
        kirto::MakeRadioButton("ThumbnailMode", "Thumbnail", kirto::kThumbnailMode, Window(), this);
    frame_list_mode = kirto::MakeRadioButton("FramelistMode", "Frame list", kirto::kFrameListMode,
                                             Window(), this);
    thumbnail_mode->setToolTip("Show the frames as pictures");
    frame_list_mode->setToolTip("Show the frames as a list, with a preview of the current one");
    Rows().AddGap();
    Rows().AddWide(kirto::MakeLabel("ModeTitle", "Mode", this));
    Rows().AddPair(thumbnail_mode, frame_list_mode);
}

void LocalView::Show(const kirto::Animation& animation, bool end_edits) {
    const kirto::FramePointer frame = animation.CurrentFrame();
    FieldPanel::Show(animation, end_edits || !frame);
    if (!frame) {
        kirto::ShowText(*frame_name, "None");
        frame_name->setToolTip({});
        kirto::ShowText(*frame_size, "Unknown");
        kirto::ShowText(*frame_colors, "Unknown");
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
