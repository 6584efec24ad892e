#include "ui/player/look_bar.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "kit/qt/ui_text.h"
#include "ui/controls/controls.h"
#include "ui/controls/folding_row.h"

namespace kirto {

namespace {

enum Onion : int { kNone, kPrevious, kNext, kBoth };
constexpr int kWholePercent = 100;
constexpr int kFirstOpacity = 30;

}  // namespace

LookBar::LookBar(PicturePane& pane, const std::function<void()>& changed, QWidget* parent)
    : QWidget(parent), pane_(pane) {
    setObjectName("LookBar");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new FoldingRow(MakeZoom(), MakeLooks(changed), this));
    ShowZoom();
}

QLayout* LookBar::MakeZoom() {
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    const auto add = [&](const char* name, const QString& text, const QString& label,
                         const QString& key, const std::function<void()>& act) {
        auto* button = new QToolButton(this);
        button->setObjectName(name);
        button->setText(text);
        button->setAccessibleName(label);
        button->setToolTip(label + " (" + key + ")");
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        connect(button, &QToolButton::clicked, this, act);
        row->addWidget(button);
    };
    add("ZoomOut", QString(QChar(0x2212)), UiText::tr("Smaller"), "-", [this] { pane_.ZoomOut(); });
    zoom_ = MakeLabel("PlayerZoom", "", this);
    zoom_->setAlignment(Qt::AlignCenter);
    zoom_->setAccessibleDescription(UiText::tr("How large pixels are shown"));
    zoom_->setMinimumWidth(fontMetrics().horizontalAdvance("3200%"));
    row->addWidget(zoom_);
    add("ZoomIn", "+", UiText::tr("Larger"), "+", [this] { pane_.ZoomIn(); });
    add("ZoomFit", UiText::tr("Fit"), UiText::tr("As large as fits"), "0", [this] { pane_.Fit(); });
    add("ZoomWhole", "100%", UiText::tr("In its own size"), "1", [this] { pane_.SetZoom(1); });
    pixel_ = MakeLabel("PlayerPixel", "", this);
    pixel_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    pixel_->setMinimumWidth(fontMetrics().horizontalAdvance("0000, 0000  #FFFFFF"));
    row->addSpacing(6);
    row->addWidget(pixel_, 1);
    return row;
}

QLayout* LookBar::MakeLooks(const std::function<void()>& changed) {
    onion_ = new QComboBox(this);
    onion_->setObjectName("OnionSkin");
    onion_->setAccessibleName(UiText::tr("Onion skin"));
    onion_->setToolTip(UiText::tr("Let the frames beside this one be seen through it"));
    onion_->addItems({UiText::tr("No onion skin"), UiText::tr("Previous frame"),
                      UiText::tr("Next frame"), UiText::tr("Both frames")});
    connect(onion_, &QComboBox::currentIndexChanged, this, changed);
    opacity_ = new QSlider(Qt::Horizontal, this);
    opacity_->setObjectName("OnionOpacity");
    opacity_->setAccessibleName(UiText::tr("Opacity of the onion skin"));
    opacity_->setToolTip(UiText::tr("How much of the frames beside this one is seen"));
    opacity_->setRange(10, 90);
    opacity_->setValue(kFirstOpacity);
    opacity_->setFixedWidth(fontMetrics().horizontalAdvance("0") * 10);
    opacity_->setEnabled(false);
    connect(opacity_, &QSlider::valueChanged, this, changed);
    connect(onion_, &QComboBox::currentIndexChanged, opacity_,
            [this](int choice) { opacity_->setEnabled(choice != kNone); });
    saved_ = new QCheckBox(UiText::tr("Saved colors"), this);
    saved_->setObjectName("SavedColors");
    saved_->setAccessibleName(saved_->text());
    saved_->setToolTip(UiText::tr("Show the frame with the colors that a GIF file will have"));
    connect(saved_, &QCheckBox::toggled, this, changed);
    auto* row = new QHBoxLayout;
    row->addWidget(onion_);
    row->addWidget(opacity_);
    row->addWidget(saved_);
    row->addStretch();
    return row;
}

double LookBar::OnionOpacity() const {
    return static_cast<double>(opacity_->value()) / kWholePercent;
}

bool LookBar::ShowsPrevious() const {
    return onion_->currentIndex() == kPrevious || onion_->currentIndex() == kBoth;
}

bool LookBar::ShowsNext() const {
    return onion_->currentIndex() == kNext || onion_->currentIndex() == kBoth;
}

void LookBar::ShowPixel(const QString& text) {
    ShowText(*pixel_, text);
}

void LookBar::ShowZoom() {
    ShowText(*zoom_, QString("%1%").arg(qRound(pane_.Zoom() * kWholePercent)));
}

}  // namespace kirto
