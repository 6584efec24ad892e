#include "ui/file_panels/translator_settings_window.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSpinBox>
#include <limits>

#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

// What is known of a setting besides its name and type.
struct KnownSetting {
    const char* name;
    const char* label;
    int min;
    int max;
};

constexpr KnownSetting kKnownSettings[] = {
    {"quality", UiText::Later("Quality"), 0, 100},
    {"compression", UiText::Later("Compression"), 0, 9},
    {"lossless", UiText::Later("Lossless"), 0, 0},
    {"rle", UiText::Later("Run-length encoding"), 0, 0},
};

constexpr double kMaxReal = 1e9;
constexpr int kDecimals = 3;

const KnownSetting* FindKnown(const std::string& name) {
    for (const KnownSetting& known : kKnownSettings) {
        if (name == known.name) return &known;
    }
    return nullptr;
}

QString LabelFor(const std::string& name) {
    const KnownSetting* known = FindKnown(name);
    return known ? UiText::tr(known->label) : QString::fromStdString(name);
}

QDoubleSpinBox* MakeRealField(double value) {
    auto* field = new QDoubleSpinBox;
    field->setDecimals(kDecimals);
    field->setRange(-kMaxReal, kMaxReal);
    field->setValue(value);
    return field;
}

}  // namespace

TranslatorSettingsWindow::TranslatorSettingsWindow(BMessage settings,
                                                   std::function<void(const BMessage&)> changed,
                                                   QWidget* parent)
    : QDialog(parent), settings_(std::move(settings)), changed_(std::move(changed)) {
    setWindowTitle(UiText::tr("Translator Settings"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* form = new QFormLayout(this);
    for (int32 i = 0; i < settings_.CountNames(); ++i) {
        const std::string name(settings_.NameAt(i));
        type_code type = 0;
        int32 count = 0;
        if (settings_.GetInfo(name, &type, &count) == B_OK) AddRow(name, type, *form);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

void TranslatorSettingsWindow::AddRow(const std::string& name, type_code type, QFormLayout& form) {
    QWidget* field = type == B_INT32_TYPE    ? MakeNumberField(name)
                     : type == B_BOOL_TYPE   ? MakeSwitch(name)
                     : type == B_FLOAT_TYPE  ? MakeFloatField(name)
                     : type == B_DOUBLE_TYPE ? MakeDoubleField(name)
                     : type == B_STRING_TYPE ? MakeTextField(name)
                                             : nullptr;
    if (!field) return;
    field->setObjectName(QString::fromStdString(name));
    field->setAccessibleName(LabelFor(name));
    if (type == B_BOOL_TYPE) {
        form.addRow(field);
    } else {
        form.addRow(LabelFor(name) + ":", field);
    }
}

QWidget* TranslatorSettingsWindow::MakeNumberField(const std::string& name) {
    int32 value = 0;
    settings_.FindInt32(name, &value);
    const KnownSetting* known = FindKnown(name);
    auto* field = new QSpinBox;
    field->setRange(known ? known->min : std::numeric_limits<int32>::min(),
                    known ? known->max : std::numeric_limits<int32>::max());
    field->setValue(value);
    connect(field, &QSpinBox::valueChanged, this,
            [this, name](int now) { Change(name, [&] { settings_.AddInt32(name, now); }); });
    return field;
}

QWidget* TranslatorSettingsWindow::MakeSwitch(const std::string& name) {
    bool value = false;
    settings_.FindBool(name, &value);
    auto* box = new QCheckBox(LabelFor(name));
    box->setChecked(value);
    connect(box, &QCheckBox::toggled, this,
            [this, name](bool now) { Change(name, [&] { settings_.AddBool(name, now); }); });
    return box;
}

QWidget* TranslatorSettingsWindow::MakeFloatField(const std::string& name) {
    float value = 0;
    settings_.FindFloat(name, &value);
    QDoubleSpinBox* field = MakeRealField(static_cast<double>(value));
    connect(field, &QDoubleSpinBox::valueChanged, this, [this, name](double now) {
        Change(name, [&] { settings_.AddFloat(name, static_cast<float>(now)); });
    });
    return field;
}

QWidget* TranslatorSettingsWindow::MakeDoubleField(const std::string& name) {
    double value = 0;
    settings_.FindDouble(name, &value);
    QDoubleSpinBox* field = MakeRealField(value);
    connect(field, &QDoubleSpinBox::valueChanged, this,
            [this, name](double now) { Change(name, [&] { settings_.AddDouble(name, now); }); });
    return field;
}

QWidget* TranslatorSettingsWindow::MakeTextField(const std::string& name) {
    std::string value;
    settings_.FindString(name, &value);
    auto* field = new QLineEdit(QString::fromStdString(value));
    connect(field, &QLineEdit::textChanged, this, [this, name](const QString& now) {
        Change(name, [&] { settings_.AddString(name, now.toStdString()); });
    });
    return field;
}

template <typename Add>
void TranslatorSettingsWindow::Change(const std::string& name, Add add) {
    settings_.RemoveName(name);
    add();
    changed_(settings_);
}

}  // namespace kirto
