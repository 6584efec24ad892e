#include "ui/controls/rt_color_control.h"

#include <QGridLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QSpinBox>

#include "kit/qt/ui_text.h"
#include "ui/controls/screen_color_button.h"

namespace {

constexpr int kMaxLevel = 255;
constexpr int kPageStep = 16;
constexpr uint32 kColorBits = 0xFFFFFF00;

int LevelOf(int32 value, int shift) {
    return static_cast<int>(static_cast<uint32>(value) >> shift) & kMaxLevel;
}

int32 ValueOf(const QColor& color) {
    const auto channels = static_cast<uint32>(color.rgb());
    return static_cast<int32>(channels << 8);
}

}  // namespace

RTColorControl::RTColorControl(const char* name, QWidget* parent) : QWidget(parent) {
    setObjectName(QString::fromUtf8(name));
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    channels_ = {MakeChannel(UiText::Later("Red"), 24, *layout),
                 MakeChannel(UiText::Later("Green"), 16, *layout),
                 MakeChannel(UiText::Later("Blue"), 8, *layout)};
    auto* pick = new kirto::ScreenColorButton(this);
    pick->WhenPicked([this](const QColor& color) { SetValue(ValueOf(color)); });
    layout->addWidget(pick, layout->rowCount(), 1, 1, 2, Qt::AlignRight);
}

RTColorControl::Channel RTColorControl::MakeChannel(const char* name, int shift,
                                                    QGridLayout& layout) {
    const QString label_text = UiText::tr("%1:").arg(UiText::tr(name));
    auto* label = new QLabel(label_text, this);
    auto* slider = new QSlider(Qt::Horizontal, this);
    slider->setObjectName(QString::fromUtf8(name) + "Slider");
    slider->setAccessibleName(label_text);
    slider->setRange(0, kMaxLevel);
    slider->setPageStep(kPageStep);
    auto* field = new QSpinBox(this);
    field->setObjectName(QString::fromUtf8(name));
    field->setAccessibleName(label_text);
    field->setRange(0, kMaxLevel);
    label->setBuddy(field);
    const int row = layout.rowCount();
    layout.addWidget(label, row, 0);
    layout.addWidget(slider, row, 1);
    layout.addWidget(field, row, 2);
    const auto set_level = [this, shift](int level) { SetLevel(shift, level); };
    connect(slider, &QSlider::valueChanged, this, set_level);
    connect(field, &QSpinBox::valueChanged, this, set_level);
    return {slider, field, shift};
}

QColor RTColorControl::Color() const {
    return {LevelOf(value_, 24), LevelOf(value_, 16), LevelOf(value_, 8)};
}

void RTColorControl::SetValue(int32 value) {
    // The preview is painted later, and then asks for the color.
    if (auto* preview = window()->findChild<QWidget*>("Preview")) preview->update();
    value_ = static_cast<int32>(static_cast<uint32>(value) & kColorBits);
    for (const Channel& channel : channels_) {
        const QSignalBlocker quiet_slider(channel.slider);
        const QSignalBlocker quiet_field(channel.field);
        channel.slider->setValue(LevelOf(value_, channel.shift));
        channel.field->setValue(LevelOf(value_, channel.shift));
    }
}

void RTColorControl::SetLevel(int shift, int level) {
    const uint32 others = static_cast<uint32>(value_) & ~(uint32{kMaxLevel} << shift);
    SetValue(static_cast<int32>(others | static_cast<uint32>(level) << shift));
}
