#include "ui/thumbnails/difference_window.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QPushButton>
#include <algorithm>
#include <cstring>
#include <vector>

#include "kit/qt/ui_text.h"
#include "picture/picture_builder.h"
#include "ui/controls/controls.h"

namespace {

constexpr int kTurnMilliseconds = 600;
constexpr int kWidth = 640;  // pixels, at first
constexpr int kHeight = 420;

// The part of the row that lies on the screen, where it lies there.
void DrawRow(const kirto::Picture& picture, int32 y, int32 left, std::vector<uint8>* pixels,
             std::vector<uint8>* row) {
    const int32 room = static_cast<int32>(row->size() / 4) - left;
    const int32 count = std::min(picture.Width(), room);
    if (count <= 0) return;
    pixels->resize(static_cast<size_t>(picture.Width()) * 4);
    picture.ReadRow(y, pixels->data());
    std::memcpy(row->data() + static_cast<size_t>(left) * 4, pixels->data(),
                static_cast<size_t>(count) * 4);
}

}  // namespace

DifferenceWindow::DifferenceWindow(Finding finding, bool draw_transparent, QWidget* parent)
    : QDialog(parent), finding_(std::move(finding)), draw_transparent_(draw_transparent) {
    setObjectName("DifferenceWindow");
    setWindowTitle(UiText::tr("Differences"));
    setAttribute(Qt::WA_DeleteOnClose);
    saved = new kirto::FramePreview([](int32) {}, this);
    saved->setAccessibleName(UiText::tr("The frame in Kirto"));
    read = new kirto::FramePreview([](int32) {}, this);
    read->setAccessibleName(UiText::tr("The frame in browsers"));
    saved_label = kirto::MakeLabel("SavedLabel", UiText::tr("In Kirto"), this);
    read_label = kirto::MakeLabel("ReadLabel", UiText::tr("In browsers"), this);
    position = kirto::MakeLabel("Position", "", this);
    slider = new QSlider(Qt::Horizontal, this);
    slider->setObjectName("Pair");
    slider->setAccessibleName(UiText::tr("Frame that differs"));
    slider->setRange(0, std::max(static_cast<int>(finding_->differences.pairs.size()) - 1, 0));
    slider->setPageStep(1);
    turns = new QCheckBox(UiText::tr("&In turns"), this);
    turns->setObjectName("Turns");
    turns->setAccessibleName(UiText::tr("In turns"));
    turns->setToolTip(UiText::tr("Shows both in one place, one after the other"));
    Arrange();
    connect(slider, &QSlider::valueChanged, this, [this](int number) { ShowPair(number); });
    connect(turns, &QCheckBox::toggled, this, [this](bool on) { ShowInTurns(on); });
    connect(&timer_, &QTimer::timeout, this, [this] { TakeTurn(); });
    resize(kWidth, kHeight);
    ShowPair(0);
    slider->setFocus();
}

void DifferenceWindow::Arrange() {
    auto* pictures = new QGridLayout;
    pictures->addWidget(saved_label, 0, 0, Qt::AlignHCenter);
    pictures->addWidget(read_label, 0, 1, Qt::AlignHCenter);
    pictures->addWidget(saved, 1, 0);
    pictures->addWidget(read, 1, 1);
    pictures->setRowStretch(1, 1);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    auto* controls = new QHBoxLayout;
    controls->addWidget(slider, 1);
    controls->addWidget(position);
    controls->addWidget(turns);
    controls->addWidget(buttons);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(pictures, 1);
    layout->addLayout(controls);
}

void DifferenceWindow::ShowPair(int32 number) {
    const auto& pairs = finding_->differences.pairs;
    if (number < 0 || number >= static_cast<int32>(pairs.size())) return;
    const kirto::SaveDifferences::Pair& pair = pairs[static_cast<size_t>(number)];
    slider->setValue(number);
    saved->ShowFrame(OnScreen(finding_->saved->frames.At(pair.saved)), draw_transparent_);
    read->ShowFrame(finding_->read->frames.At(pair.read), draw_transparent_);
    position->setText(
        UiText::tr("Frame %1 of %2").arg(pair.saved + 1).arg(finding_->saved->frames.Size()));
}

void DifferenceWindow::ShowInTurns(bool in_turns) {
    turns->setChecked(in_turns);
    if (in_turns) {
        timer_.start(kTurnMilliseconds);
    } else {
        timer_.stop();
    }
    for (QWidget* widget : std::initializer_list<QWidget*>{saved, saved_label})
        widget->setVisible(true);
    for (QWidget* widget : std::initializer_list<QWidget*>{read, read_label})
        widget->setVisible(!in_turns);
}

void DifferenceWindow::TakeTurn() {
    const bool read_is_next = saved->isVisibleTo(this);
    for (QWidget* widget : std::initializer_list<QWidget*>{saved, saved_label})
        widget->setVisible(!read_is_next);
    for (QWidget* widget : std::initializer_list<QWidget*>{read, read_label})
        widget->setVisible(read_is_next);
}

// The frame as large as the screen that browsers show it on. Itself where it covers that, or where
// memory is short.
kirto::FramePointer DifferenceWindow::OnScreen(const kirto::FramePointer& frame) const {
    const int32 width = finding_->saved->width;
    const int32 height = finding_->saved->height;
    const kirto::Picture* const picture = frame->bitmap.get();
    const bool whole = frame->width == width && frame->height == height;
    if (whole || !picture || !picture->HasRows() || width < 1 || height < 1) return frame;
    kirto::PictureBuilder builder(width, height, picture->ColorSpace(), nullptr);
    std::vector<uint8> pixels;
    for (int32 y = 0; y < height; ++y) {
        std::vector<uint8> row(static_cast<size_t>(width) * 4);
        const int32 in_frame = y - frame->y_offset;
        if (in_frame >= 0 && in_frame < std::min(frame->height, picture->Height()))
            DrawRow(*picture, in_frame, frame->x_offset, &pixels, &row);
        if (!builder.AddRow(row.data())) return frame;
    }
    auto shown = std::make_shared<Frame>(*frame);
    shown->bitmap = builder.Take();
    if (!shown->bitmap) return frame;
    shown->width = width;
    shown->height = height;
    return shown;
}
