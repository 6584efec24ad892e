#include "ui/export/export_form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QSlider>
#include <QSpinBox>

#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr int kMostLoss = 200;
constexpr int kMostQuality = 100;
constexpr int kUsualQuality = 80;
constexpr int kUsualKilobytes = 1000;
constexpr int kMostKilobytes = 10'000'000;
constexpr int kMostScale = 400;

bool IsVideo(ExportFormat format) {
    return format == ExportFormat::kMp4 || format == ExportFormat::kWebm;
}

}  // namespace

ExportForm::ExportForm(QWidget* parent)
    : QWidget(parent), form_(new QFormLayout(this)), format_(new QComboBox(this)) {
    form_->setContentsMargins(0, 0, 0, 0);
    for (const char* name :
         {UiText::Later("GIF"), UiText::Later("WebP"), UiText::Later("Animated PNG"),
          UiText::Later("MP4 video"), UiText::Later("WebM video")})
        format_->addItem(UiText::tr(name));
    AddField("Format", UiText::tr("F&ormat:"), format_);
    colors_ = AddNumber("Colors", UiText::tr("&Colors:"), 2, 256);
    one_table_ = new QCheckBox(UiText::tr("The same colors in all fra&mes"), this);
    AddField("OneTable", "", one_table_);
    dither_ = new QComboBox(this);
    dither_->addItems({UiText::tr("none"), UiText::tr("diffusion"), UiText::tr("ordered")});
    AddField("Dither", UiText::tr("&Dither:"), dither_);
    loss_ = AddSlider("Loss", UiText::tr("&Loss:"), kMostLoss);
    lossless_ = new QCheckBox(UiText::tr("&Keep every pixel"), this);
    AddField("Lossless", "", lossless_);
    quality_ = AddSlider("Quality", UiText::tr("&Quality:"), kMostQuality);
    quality_->setValue(kUsualQuality);
    scale_ = AddNumber("Scale", UiText::tr("&Scale:"), 1, kMostScale, " %");
    every_ = AddNumber("Every", UiText::tr("&Every n-th frame:"), 1, kMostFramesAStep);
    fits_ = new QCheckBox(UiText::tr("Fit &under"), this);
    fits_->setObjectName("Fits");
    kilobytes_ = new QSpinBox(this);
    kilobytes_->setObjectName("Kilobytes");
    kilobytes_->setAccessibleName(UiText::tr("Fit under"));
    kilobytes_->setRange(1, kMostKilobytes);
    kilobytes_->setSuffix(UiText::tr(" KB"));
    kilobytes_->setValue(kUsualKilobytes);
    form_->addRow(fits_, kilobytes_);
    connect(kilobytes_, &QSpinBox::valueChanged, this, [this] { Change(); });
    connect(format_, &QComboBox::currentIndexChanged, this, [this] {
        ShowFields();
        if (!showing_ && format_changed_)
            format_changed_(static_cast<ExportFormat>(format_->currentIndex()));
        Change();
    });
    connect(dither_, &QComboBox::currentIndexChanged, this, [this] { Change(); });
    for (QCheckBox* box : {one_table_, lossless_, fits_}) {
        connect(box, &QCheckBox::toggled, this, [this] {
            ShowFields();
            Change();
        });
    }
    ShowWish({});
}

void ExportForm::AddField(const char* name, const QString& label, QWidget* field) {
    field->setObjectName(name);
    field->setAccessibleName(QString(label).remove('&').remove(':'));
    form_->addRow(label, field);
}

QSpinBox* ExportForm::AddNumber(const char* name, const QString& label, int first, int last,
                                const QString& unit) {
    auto* number = new QSpinBox(this);
    number->setRange(first, last);
    number->setSuffix(unit);
    AddField(name, label, number);
    connect(number, &QSpinBox::valueChanged, this, [this] { Change(); });
    return number;
}

QSlider* ExportForm::AddSlider(const char* name, const QString& label, int last) {
    auto* row = new QWidget(this);
    auto* slider = new QSlider(Qt::Horizontal, row);
    auto* number = new QSpinBox(row);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider, 1);
    layout->addWidget(number);
    slider->setRange(0, last);
    number->setRange(0, last);
    row->setFocusProxy(number);
    AddField(name, label, row);
    slider->setObjectName(QString(name) + "Slider");
    slider->setAccessibleName(row->accessibleName());
    number->setObjectName(QString(name) + "Number");
    number->setAccessibleName(row->accessibleName());
    connect(slider, &QSlider::valueChanged, number, &QSpinBox::setValue);
    connect(number, &QSpinBox::valueChanged, this, [this, slider](int value) {
        slider->setValue(value);
        Change();
    });
    return slider;
}

void ExportForm::ShowFields() {
    const auto format = static_cast<ExportFormat>(format_->currentIndex());
    const bool gif = format == ExportFormat::kGif;
    const bool webp = format == ExportFormat::kWebp;
    for (QWidget* field : {static_cast<QWidget*>(colors_), static_cast<QWidget*>(one_table_),
                           static_cast<QWidget*>(dither_), loss_->parentWidget()})
        form_->setRowVisible(field, gif);
    form_->setRowVisible(lossless_, webp);
    form_->setRowVisible(quality_->parentWidget(),
                         IsVideo(format) || (webp && !lossless_->isChecked()));
    kilobytes_->setEnabled(fits_->isChecked());
}

void ExportForm::Change() {
    if (!showing_ && changed_) changed_();
}

ExportWish ExportForm::Wish() const {
    ExportWish wish;
    ExportSettings& settings = wish.settings;
    settings.format = static_cast<ExportFormat>(format_->currentIndex());
    settings.colors = colors_->value();
    settings.one_table = one_table_->isChecked();
    settings.dither = static_cast<AdaptiveDither>(dither_->currentIndex());
    settings.loss = loss_->value();
    const bool kept = settings.format == ExportFormat::kWebp && lossless_->isChecked();
    if (!kept) settings.quality = quality_->value();
    settings.matte = matte_;
    settings.scale = scale_->value();
    settings.every = every_->value();
    if (fits_->isChecked()) wish.kilobytes = kilobytes_->value();
    return wish;
}

void ExportForm::ShowWish(const ExportWish& wish) {
    showing_ = true;
    const ExportSettings& settings = wish.settings;
    format_->setCurrentIndex(static_cast<int>(settings.format));
    colors_->setValue(settings.colors);
    one_table_->setChecked(settings.one_table);
    dither_->setCurrentIndex(static_cast<int>(settings.dither));
    loss_->setValue(settings.loss);
    lossless_->setChecked(!settings.quality);
    if (settings.quality) quality_->setValue(*settings.quality);
    matte_ = settings.matte;
    scale_->setValue(settings.scale);
    every_->setValue(settings.every);
    fits_->setChecked(wish.kilobytes.has_value());
    if (wish.kilobytes) kilobytes_->setValue(*wish.kilobytes);
    ShowFields();
    showing_ = false;
}

}  // namespace kirto
