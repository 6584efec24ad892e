#include "ui/controls/time_field.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSlider>
#include <cmath>

#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr int kTimeDecimals = 2;
constexpr double kStepsPerSecond = 100;  // of the slider
constexpr double kTimeStep = 0.1;        // of the number's arrows, seconds

}  // namespace

TimeField::TimeField(const char* name, const QString& label, QWidget* parent)
    : QWidget(parent),
      slider_(new QSlider(Qt::Horizontal, this)),
      number_(new QDoubleSpinBox(this)) {
    setObjectName(name);
    slider_->setObjectName(QString(name) + "Slider");
    slider_->setAccessibleName(label);
    number_->setObjectName(QString(name) + "Time");
    number_->setAccessibleName(label);
    number_->setDecimals(kTimeDecimals);
    number_->setSingleStep(kTimeStep);
    number_->setSuffix(UiText::tr(" s"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider_, 1);
    layout->addWidget(number_);
    setFocusProxy(number_);
    connect(slider_, &QSlider::valueChanged, this,
            [this](int step) { number_->setValue(step / kStepsPerSecond); });
    connect(number_, &QDoubleSpinBox::valueChanged, this, [this] {
        ShowOnSlider();
        if (changed_) changed_();
    });
}

void TimeField::SetRange(double last, double value) {
    {
        const QSignalBlocker blocker(slider_);
        slider_->setRange(0, static_cast<int>(std::ceil(last * kStepsPerSecond)));
        slider_->setPageStep(static_cast<int>(kStepsPerSecond));
    }
    number_->setRange(0, last);
    number_->setValue(value);
    ShowOnSlider();
}

double TimeField::Seconds() const {
    return number_->value();
}

void TimeField::SetSeconds(double seconds) {
    number_->setValue(seconds);
}

bool TimeField::IsLast() const {
    return number_->value() >= number_->maximum();
}

void TimeField::ShowOnSlider() {
    const QSignalBlocker blocker(slider_);
    slider_->setValue(qRound(number_->value() * kStepsPerSecond));
}

}  // namespace kirto
