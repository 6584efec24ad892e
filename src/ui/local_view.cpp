#include "ui/local_view.h"

#include <QAbstractItemView>

#include "document/command_codes.h"
#include "ui/panel_layout.h"

namespace {

QString ColorsText(int32 colors) {
    if (colors == 0) return "Unknown";
    if (colors == 1) return "1 color";
    return QString("%1 colors").arg(colors);
}

}  // namespace

LocalView::LocalView(const kirto::ShownDocument& shown, const BMessenger& window, QWidget* parent)
    : QGroupBox("Current Frame", parent), shown_(shown) {
    setObjectName("LocalView");
    MakeControls(window);
    DescribeControls();

    auto* layout = new kirto::PanelLayout(this);
    layout->AddWide(frame_name);
    layout->AddWide(frame_size);
    layout->AddWide(frame_colors);
    layout->AddField("X offset:", x_offset);
    layout->AddField("Y offset:", y_offset);
    layout->AddWide(pause);
    layout->AddField("Length:", pause_length);
    layout->AddField(palette, palette_menu);
    layout->AddGap();
    layout->AddWide(kirto::MakeLabel("ModeTitle", "Mode", this));
    layout->AddPair(thumbnail_mode, frame_list_mode);
    ResetDisplay();
}

void LocalView::MakeControls(const BMessenger& window) {
    frame_name = kirto::MakeLabel("FrameName", "None", this);
    // A file's name may be long, and must not make the panel wide.
    frame_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    frame_size = kirto::MakeLabel("FrameSize", "Unknown", this);
    frame_colors = kirto::MakeLabel("FrameColors", "Unknown", this);
    x_offset = kirto::MakeField("XOffset", kirto::kFrameSetXOffset, window, this);
    y_offset = kirto::MakeField("YOffset", kirto::kFrameSetYOffset, window, this);
    pause = kirto::MakeCheckBox("Pause", "Use pause", kirto::kFrameUsePause, window, this);
    pause_length = kirto::MakeField("Pause length", kirto::kFrameSetPauseLength, window, this);
    palette =
        kirto::MakeCheckBox("Palette", "Local palette", kirto::kFrameUsePalette, window, this);
    palette_menu =
        kirto::MakePopUpMenu("PaletteMenuField",
                             {{"BeOS system", kirto::kFrameSystem, kirto::kPaletteSystem},
                              {"web safe", kirto::kFrameWebSafe, kirto::kPaletteWebSafe},
                              {"greyscale", kirto::kFrameGreyscale, kirto::kPaletteGreyscale},
                              {"optimal", kirto::kFrameOptimal, kirto::kPaletteOptimal},
                              {"from a file", kirto::kFramePaletteToFile, kirto::kPaletteFromFile}},
                             window, this);
    palette_menu->view()->setObjectName("WhichPalette");
    thumbnail_mode =
        kirto::MakeRadioButton("ThumbnailMode", "Thumbnail", kirto::kThumbnailMode, window, this);
    frame_list_mode =
        kirto::MakeRadioButton("FramelistMode", "Frame list", kirto::kFrameListMode, window, this);
}

void LocalView::DescribeControls() {
    palette_menu->setAccessibleName("Local palette colors");
    x_offset->setToolTip("Distance of the frame from the animation's left edge, in pixels");
    y_offset->setToolTip("Distance of the frame from the animation's top edge, in pixels");
    pause->setToolTip("Give the frame a pause of its own");
    pause_length->setToolTip("Length of the frame's pause, in the unit chosen in the preferences");
    palette->setToolTip("Save the frame with a palette of its own");
    palette_menu->setToolTip("The colors of the frame's own palette");
    thumbnail_mode->setToolTip("Show the frames as pictures");
    frame_list_mode->setToolTip("Show the frames as a list, with a preview of the current one");
}

void LocalView::UpdateDisplay() {
    const kirto::FramePointer frame = shown_.CurrentFrame();
    if (!frame) {
        ResetDisplay();
        return;
    }
    ShowFrame(*frame);
    EnableFrameControls(true);
}

void LocalView::ShowFrame(const Frame& frame) {
    const QString name = QString::fromStdString(frame.name);
    kirto::ShowText(*frame_name, name);
    frame_name->setToolTip("<p>" + name.toHtmlEscaped() + "</p>");
    kirto::ShowText(*frame_size, QString("%1 x %2").arg(frame.width).arg(frame.height));
    kirto::ShowText(*frame_colors, ColorsText(frame.palette->unique_colors));
    x_offset->ShowText(QString::number(frame.x_offset));
    y_offset->ShowText(QString::number(frame.y_offset));
    pause->setChecked(frame.use_pause);
    pause_length->ShowText(QString::number(frame.pause_length, 'f', 2));
    palette->setChecked(frame.local_palette);
    kirto::MarkPalette(*palette_menu, frame.palette->mode);
}

void LocalView::ResetDisplay() {
    kirto::ShowText(*frame_name, "None");
    frame_name->setToolTip({});
    kirto::ShowText(*frame_size, "Unknown");
    kirto::ShowText(*frame_colors, "Unknown");
    x_offset->SetText("0");
    y_offset->SetText("0");
    pause_length->SetText("0.00");
    pause->setChecked(false);
    palette->setChecked(false);
    EnableFrameControls(false);
}

void LocalView::EnableFrameControls(bool enable) {
    x_offset->setEnabled(enable);
    y_offset->setEnabled(enable);
    pause->setEnabled(enable);
    pause_length->setEnabled(enable && pause->isChecked());
    palette->setEnabled(enable);
    palette_menu->setEnabled(enable && palette->isChecked());
}

void LocalView::ShowMode(bool frame_list) {
    QRadioButton* button = frame_list ? frame_list_mode : thumbnail_mode;
    button->setChecked(true);
}
