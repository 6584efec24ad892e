#include "ui/player/transport_bar.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "kit/qt/ui_text.h"
#include "ui/controls/controls.h"
#include "ui/controls/folding_row.h"

namespace kirto {

namespace {

constexpr double kMillisecondsPerSecond = 1000;

QString SecondsText(PlaybackSchedule::Duration time) {
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
    return QString::number(static_cast<double>(milliseconds) / kMillisecondsPerSecond, 'f', 2);
}

}  // namespace

TransportBar::TransportBar(Player& player, QWidget* parent) : QWidget(parent), player_(player) {
    setObjectName("TransportBar");
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new FoldingRow(MakeButtons(), MakeChoices(), this));
    UpdateDisplay(0);
}

// By the mouse the keyboard stays where it is.
QToolButton* TransportBar::MakeButton(const char* name, TransportSymbol symbol,
                                      const QString& label, const QString& key,
                                      const std::function<void()>& act) {
    auto* button = new QToolButton(this);
    button->setObjectName(name);
    button->setAccessibleName(label);
    button->setToolTip(label + " (" + key + ")");
    button->setIcon(MakeTransportIcon(symbol));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &QToolButton::clicked, this, act);
    return button;
}

QLayout* TransportBar::MakeButtons() {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(0);
    using Symbol = TransportSymbol;
    buttons->addWidget(MakeButton("ToStart", Symbol::kToStart, UiText::tr("To the start"),
                                  UiText::tr("Home"), [this] { player_.ToStart(); }));
    buttons->addWidget(MakeButton("StepBack", Symbol::kBack, UiText::tr("Previous frame"),
                                  UiText::tr("Left"), [this] { player_.Step(-1); }));
    play_ = MakeButton("Play", Symbol::kPlay, UiText::tr("Play"), "Space",
                       [this] { player_.Toggle(); });
    buttons->addWidget(play_);
    buttons->addWidget(MakeButton("StepForward", Symbol::kForward, UiText::tr("Next frame"),
                                  UiText::tr("Right"), [this] { player_.Step(1); }));
    buttons->addWidget(MakeButton("ToEnd", Symbol::kToEnd, UiText::tr("To the end"),
                                  UiText::tr("End"), [this] { player_.ToEnd(); }));
    time_ = MakeLabel("PlayerTime", "", this);
    // Its end may be cut before the window grows.
    time_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    time_->setMinimumWidth(fontMetrics().horizontalAdvance("#000 of 000, 00.00 s of 00.00 s"));
    buttons->addSpacing(6);
    buttons->addWidget(time_, 1);
    return buttons;
}

QComboBox* TransportBar::MakeLoopMenu() {
    auto* loop = new QComboBox(this);
    loop->setObjectName("PlayerLoop");
    loop->setAccessibleName(UiText::tr("Repeat"));
    loop->setToolTip(UiText::tr("How often the animation is played"));
    loop->addItems({UiText::tr("As saved"), UiText::tr("Always"), UiText::tr("Once")});
    connect(loop, &QComboBox::currentIndexChanged, this,
            [this](int choice) { player_.SetLoop(static_cast<Player::Loop>(choice)); });
    return loop;
}

QDoubleSpinBox* TransportBar::MakeSpeedField() {
    auto* speed = new QDoubleSpinBox(this);
    speed->setObjectName("PlayerSpeed");
    speed->setAccessibleName(UiText::tr("Speed"));
    speed->setToolTip(UiText::tr("How many times as fast as the animation says"));
    speed->setRange(PlaybackClock::kSlowest, PlaybackClock::kFastest);
    speed->setSingleStep(0.25);
    speed->setDecimals(2);
    speed->setSuffix(" x");
    speed->setValue(1);
    speed->setKeyboardTracking(false);
    connect(speed, &QDoubleSpinBox::valueChanged, this,
            [this](double value) { player_.SetSpeed(value); });
    return speed;
}

QLayout* TransportBar::MakeChoices() {
    auto* selection = new QCheckBox(UiText::tr("Selection"), this);
    selection->setObjectName("PlaySelection");
    selection->setToolTip(UiText::tr("Play the selected frames only"));
    connect(selection, &QCheckBox::toggled, this,
            [this](bool on) { player_.SetPlaysSelection(on); });
    auto* browser = new QCheckBox(UiText::tr("Like a browser"), this);
    browser->setObjectName("LikeABrowser");
    browser->setToolTip(
        UiText::tr("Show frames for 0.10 s whose pause is below 0.02 s, as browsers do"));
    connect(browser, &QCheckBox::toggled, this, [this](bool on) { player_.SetLikeABrowser(on); });
    for (QCheckBox* box : {selection, browser})
        box->setAccessibleName(box->text());
    auto* choices = new QHBoxLayout;
    choices->addWidget(MakeLoopMenu());
    choices->addWidget(MakeSpeedField());
    choices->addWidget(selection);
    choices->addWidget(browser);
    choices->addStretch();
    return choices;
}

void TransportBar::UpdateDisplay(int32 frames) {
    if (player_.IsPlaying() != shows_pause_) {
        shows_pause_ = player_.IsPlaying();
        const QString name = shows_pause_ ? UiText::tr("Pause") : UiText::tr("Play");
        play_->setIcon(
            MakeTransportIcon(shows_pause_ ? TransportSymbol::kPause : TransportSymbol::kPlay));
        play_->setToolTip(name + " (" + UiText::tr("Space") + ")");
        play_->setAccessibleName(name);
    }
    const auto buttons = findChildren<QToolButton*>();
    for (QToolButton* button : buttons)
        button->setEnabled(frames > 0);
    if (player_.Frame() < 0) return ShowText(*time_, {});
    ShowText(*time_, UiText::tr("#%1 of %2, %3 s of %4 s")
                         .arg(player_.Frame())
                         .arg(frames)
                         .arg(SecondsText(player_.Time()), SecondsText(player_.Length())));
}

}  // namespace kirto
