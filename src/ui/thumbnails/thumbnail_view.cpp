#include "ui/thumbnails/thumbnail_view.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/controls.h"
#include "ui/controls/folding_row.h"
#include "ui/thumbnails/recent_view.h"
#include "ui/thumbnails/thumb_drawing_view.h"

namespace {

constexpr int32 kFirstHeight = 100;

QString HeightText(int32 pixels) {
    return UiText::tr("Thumbnail height: %1").arg(pixels);
}

}  // namespace

ThumbnailView::ThumbnailView(const kirto::ShownDocument& shown, const kirto::Editor& editor,
                             const BMessenger& window, QWidget* parent)
    : QWidget(parent), shown_(shown) {
    setObjectName("ThumbnailView");
    scroll_view_ = new kirto::ThumbScrollView(this);
    drawing_view_ = new ThumbDrawingView(shown, editor, window, scroll_view_);
    setFocusProxy(drawing_view_);
    MakeRecent(editor);
    MakeBeginning(window);
    MakeFaithfulChoice(window);
    MakeControls(window);
    UpdateDisplay();
}

void ThumbnailView::MakeBeginning(const BMessenger& window) {
    beginning_ = new QWidget(this);
    QPushButton* open = kirto::MakeButton("BeginByOpening", UiText::tr("Open..."), kirto::kMenuOpen,
                                          window, beginning_);
    open->setToolTip(UiText::tr("Open an animation"));
    QPushButton* insert = kirto::MakeButton("BeginByInserting", UiText::tr("Insert Images..."),
                                            kirto::kMenuInsert, window, beginning_);
    insert->setToolTip(UiText::tr("Make an animation of images"));
    auto* layout = new QHBoxLayout(beginning_);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    layout->addWidget(open);
    layout->addWidget(insert);
    layout->addStretch();
}

// Files are opened as the menu opens them, by the application.
void ThumbnailView::MakeRecent(const kirto::Editor& editor) {
    if (!editor.recent) return;
    recent_label_ = kirto::MakeLabel("RecentLabel", UiText::tr("Recent animations:"), this);
    recent_ = new kirto::RecentView(*editor.recent, editor.roster, editor.application, this);
    recent_label_->setBuddy(recent_);
    editor.recent->Watch(this, [this] { ShowBeginning(); });
}

// The setting is changed as the preferences do it.
void ThumbnailView::MakeFaithfulChoice(const BMessenger& window) {
    faithful_ = new QCheckBox(UiText::tr("Read and save as browsers show it"), this);
    faithful_->setObjectName("FaithfulChoice");
    faithful_->setAccessibleName(faithful_->text());
    faithful_->setToolTip(UiText::tr("Also found in the preferences, under Compatibility"));
    connect(faithful_, &QCheckBox::clicked, this, [this, window](bool on) {
        Prefs settings = shown_.Settings();
        settings.animation_faithful = on;
        BMessage message(kirto::kStoreSettings);
        settings.AddTo(&message);
        window.SendMessage(message);
    });
}

void ThumbnailView::MakeControls(const BMessenger& window) {
    height_label_ = kirto::MakeLabel("FrameHeight", "", this);
    height_label_->setText(HeightText(kFirstHeight));
    slider_ = new QSlider(Qt::Horizontal, this);
    slider_->setObjectName("Slider");
    slider_->setAccessibleName(UiText::tr("Thumbnail height"));
    slider_->setToolTip(UiText::tr("Height of the thumbnails in pixels"));
    slider_->setRange(shown_.Settings().thumbnail_minheight, shown_.Settings().thumbnail_maxheight);
    slider_->setValue(kFirstHeight);
    slider_->setPageStep(20);
    connect(slider_, &QSlider::valueChanged, this,
            [window] { window.SendMessage(kirto::kThumbnailSlider); });
    QLabel* menu_label = kirto::MakeLabel("HeightLabel", UiText::tr("Use frame:"), this);
    QComboBox* menu =
        kirto::MakePopUpMenu("HeightField",
                             {{UiText::tr("first half sized"), kirto::kThumbnailFirstHalf, 0},
                              {UiText::tr("current half sized"), kirto::kThumbnailCurrentHalf, 1},
                              {UiText::tr("first full sized"), kirto::kThumbnailFirstFull, 2},
                              {UiText::tr("current full sized"), kirto::kThumbnailCurrentFull, 3},
                              {UiText::tr("Fit"), kirto::kThumbnailFit, 4}},
                             window, this);
    menu->view()->setObjectName("HeightMenu");
    menu->setAccessibleName(UiText::tr("Use frame:"));
    menu->setToolTip(
        UiText::tr("Set the thumbnail height from a frame, or so that all frames fit"));
    menu_label->setBuddy(menu);

    auto* height = new QHBoxLayout;
    height->addWidget(height_label_);
    height->addWidget(slider_, 1);
    slider_->setMinimumWidth(slider_->sizeHint().width());
    auto* preset = new QHBoxLayout;
    preset->addWidget(menu_label);
    preset->addWidget(menu, 1);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(scroll_view_, 1);
    if (recent_) {
        layout->addWidget(recent_label_);
        layout->addWidget(recent_);
    }
    layout->addWidget(beginning_);
    layout->addWidget(faithful_, 0, Qt::AlignHCenter);
    layout->addWidget(new kirto::FoldingRow(height, preset, this));
    // The slider keeps its place while the number beside it grows.
    const QString widest = HeightText(8888);
    height_label_->setMinimumWidth(height_label_->fontMetrics().horizontalAdvance(widest));
    QWidget* before = drawing_view_;
    if (recent_) {
        setTabOrder(before, recent_);
        before = recent_;
    }
    for (QPushButton* button : beginning_->findChildren<QPushButton*>()) {
        setTabOrder(before, button);
        before = button;
    }
    setTabOrder(before, faithful_);
    setTabOrder(faithful_, slider_);
    setTabOrder(slider_, menu);
}

void ThumbnailView::UpdateDisplay() {
    const Prefs& prefs = shown_.Settings();
    {
        const QSignalBlocker blocker(slider_);
        slider_->setRange(prefs.thumbnail_minheight, prefs.thumbnail_maxheight);
    }
    // The new range may have moved the slider.
    if (SliderValue() != drawing_view_->ThumbnailHeight()) SetHeight(SliderValue());
    drawing_view_->UpdateDisplay();
    ShowBeginning();
}

void ThumbnailView::ResetDisplay() {
    drawing_view_->ResetDisplay();
    ShowBeginning();
}

void ThumbnailView::ShowBeginning() {
    faithful_->setChecked(shown_.Settings().animation_faithful);
    const bool empty = shown_.Frames().Empty();
    faithful_->setVisible(empty);
    beginning_->setVisible(empty);
    if (!recent_) return;
    recent_label_->setVisible(empty && recent_->count() > 0);
    recent_->setVisible(empty && recent_->count() > 0);
}

void ThumbnailView::SetHeight(int32 pixels) {
    kirto::ShowText(*height_label_, HeightText(pixels));
    {
        const QSignalBlocker blocker(slider_);
        slider_->setValue(pixels);
    }
    drawing_view_->SetThumbnailHeight(SliderValue());
}
