#include "ui/dialogs/picture_dialogs.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <algorithm>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"

namespace kirto {

namespace {

constexpr int kLargestSide = 65535;
constexpr const char* kAllFrames = UiText::Later("Works on all frames and the canvas.");

// The numbers are those of the command's field "filter".
constexpr const char* kFilters[] = {UiText::Later("nearest: keeps pixels as they are"),
                                    UiText::Later("bilinear: soft"),
                                    UiText::Later("Lanczos: sharp")};
constexpr int kLanczos = 2;
constexpr const char* kAnchorNames[] = {
    UiText::Later("top left"),    UiText::Later("top"),    UiText::Later("top right"),
    UiText::Later("left"),        UiText::Later("center"), UiText::Later("right"),
    UiText::Later("bottom left"), UiText::Later("bottom"), UiText::Later("bottom right")};
constexpr int kCenter = 4;

QString CurrentOrSelected(const Animation& shown) {
    const int32 several = shown.several.Count();
    return several > 0 ? UiText::tr("Works on the %1 selected frames.").arg(several)
                       : UiText::tr("Works on the current frame, the only one that is selected.");
}

template <size_t Count>
QComboBox* AddChoice(FormDialog& dialog, const char* name, const QString& label,
                     const char* const (&choices)[Count], int chosen) {
    auto* menu = new QComboBox(&dialog);
    menu->setObjectName(name);
    for (const char* choice : choices)
        menu->addItem(UiText::tr(choice));
    menu->setCurrentIndex(chosen);
    dialog.AddField(label, menu);
    return menu;
}

void StartAt(QSpinBox& field) {
    field.setFocus();
    field.selectAll();
}

// As near as the field goes: a document's own size may be as large as numbers are.
void SetNearest(QSpinBox& field, double value) {
    field.setValue(qRound(std::clamp<double>(value, field.minimum(), field.maximum())));
}

// While the box is ticked, the other side follows the one that is changed.
void KeepRatio(const QCheckBox& box, QSpinBox& width, QSpinBox& height, double ratio) {
    const auto follow = [&box](QSpinBox& changed, QSpinBox& other, double factor) {
        QObject::connect(&changed, &QSpinBox::valueChanged, &other,
                         [&box, &other, factor](int value) {
                             if (!box.isChecked() || other.hasFocus()) return;
                             const QSignalBlocker blocker(other);
                             SetNearest(other, value * factor);
                         });
    };
    follow(width, height, 1 / ratio);
    follow(height, width, ratio);
}

}  // namespace

void AskForSize(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    auto* dialog = new FormDialog("ResizeAnimation", UiText::tr("Resize Animation"),
                                  UiText::tr(kAllFrames), parent);
    const int old_width = std::max(shown.width, 1);
    const int old_height = std::max(shown.height, 1);
    auto* width = dialog->AddNumber("Width", UiText::tr("&Width:"), 1, kLargestSide, old_width);
    auto* height = dialog->AddNumber("Height", UiText::tr("&Height:"), 1, kLargestSide, old_height);
    auto* percent = dialog->AddNumber("Percent", UiText::tr("&Percent:"), 1, 10000, 100);
    auto* ratio = new QCheckBox(UiText::tr("&Keep the ratio"), dialog);
    ratio->setObjectName("Ratio");
    ratio->setChecked(true);
    dialog->AddWide(ratio);
    auto* filter = AddChoice(*dialog, "Filter", UiText::tr("&Filter:"), kFilters, kLanczos);
    KeepRatio(*ratio, *width, *height, static_cast<double>(old_width) / old_height);
    QObject::connect(percent, &QSpinBox::valueChanged, dialog, [=](int value) {
        SetNearest(*width, static_cast<double>(old_width) * value / 100);
        SetNearest(*height, static_cast<double>(old_height) * value / 100);
    });
    StartAt(*width);
    const auto make = [=]() -> std::optional<BMessage> {
        BMessage message(kResizeAnimation);
        message.AddInt32("width", width->value());
        message.AddInt32("height", height->value());
        message.AddInt32("filter", filter->currentIndex());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

void AskForCanvas(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    auto* dialog = new FormDialog("CanvasSize", UiText::tr("Canvas Size"),
                                  UiText::tr("Works on all frames. Pictures keep their size; what "
                                             "a smaller canvas has no room for is "
                                             "cut off."),
                                  parent);
    auto* width = dialog->AddNumber("Width", UiText::tr("&Width:"), 1, kLargestSide,
                                    std::max(shown.width, 1));
    auto* height = dialog->AddNumber("Height", UiText::tr("&Height:"), 1, kLargestSide,
                                     std::max(shown.height, 1));
    auto* anchor =
        AddChoice(*dialog, "Anchor", UiText::tr("&Pictures stay at:"), kAnchorNames, kCenter);
    StartAt(*width);
    const auto make = [=]() -> std::optional<BMessage> {
        BMessage message(kSetCanvasSize);
        message.AddInt32("width", width->value());
        message.AddInt32("height", height->value());
        message.AddInt32("anchor", anchor->currentIndex());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

void AskForFit(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    constexpr const char* kWays[] = {UiText::Later("scaled to the canvas"),
                                     UiText::Later("padded to the canvas"),
                                     UiText::Later("cropped to the canvas")};
    auto* dialog = new FormDialog("FitFrames", UiText::tr("Fit Frames to Animation"),
                                  CurrentOrSelected(shown), parent);
    auto* fit = AddChoice(*dialog, "Fit", UiText::tr("Pictures are &to be:"), kWays, 0);
    auto* filter = AddChoice(*dialog, "Filter", UiText::tr("&Filter:"), kFilters, kLanczos);
    QObject::connect(fit, &QComboBox::currentIndexChanged, filter,
                     [filter](int way) { filter->setEnabled(way == 0); });
    fit->setFocus();
    const auto make = [=]() -> std::optional<BMessage> {
        BMessage message(kFitFrames);
        message.AddInt32("fit", fit->currentIndex());
        message.AddInt32("filter", filter->currentIndex());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

void AskForColors(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    auto* dialog = new FormDialog("AdjustColors", UiText::tr("Adjust Colors"),
                                  CurrentOrSelected(shown), parent);
    auto* brightness = dialog->AddNumber("Brightness", UiText::tr("&Brightness:"), -100, 100, 0);
    auto* contrast = dialog->AddNumber("Contrast", UiText::tr("&Contrast:"), -100, 100, 0);
    auto* saturation = dialog->AddNumber("Saturation", UiText::tr("&Saturation:"), -100, 100, 0);
    auto* greyscale = new QCheckBox(UiText::tr("&Greyscale"), dialog);
    greyscale->setObjectName("Greyscale");
    dialog->AddWide(greyscale);
    StartAt(*brightness);
    const auto make = [=]() -> std::optional<BMessage> {
        BMessage message(kAdjustColors);
        message.AddInt32("brightness", brightness->value());
        message.AddInt32("contrast", contrast->value());
        message.AddInt32("saturation", saturation->value());
        message.AddBool("greyscale", greyscale->isChecked());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

void AskForOpacity(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    auto* dialog =
        new FormDialog("Opacity", UiText::tr("Opacity"), CurrentOrSelected(shown), parent);
    auto* percent = dialog->AddNumber("Percent", UiText::tr("&Opacity in percent:"), 0, 100, 100);
    StartAt(*percent);
    const auto make = [=]() -> std::optional<BMessage> {
        BMessage message(kSetOpacity);
        message.AddInt32("percent", percent->value());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

void AskForOverlay(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    auto* dialog = new FormDialog("OverlayImage", UiText::tr("Overlay Image"),
                                  CurrentOrSelected(shown), parent);
    QLineEdit* file = dialog->AddFile(UiText::tr("&Image:"), [dialog] {
        return QFileDialog::getOpenFileName(dialog, UiText::tr("Overlay Image"));
    });
    auto* x = dialog->AddNumber("X", UiText::tr("&X offset:"), -kLargestSide, kLargestSide, 0);
    auto* y = dialog->AddNumber("Y", UiText::tr("&Y offset:"), -kLargestSide, kLargestSide, 0);
    auto* percent = dialog->AddNumber("Percent", UiText::tr("&Opacity in percent:"), 0, 100, 100);
    const auto make = [=]() -> std::optional<BMessage> {
        if (!QFileInfo(file->text()).isFile()) return std::nullopt;
        BMessage message(kOverlayImage);
        message.AddRef("refs", entry_ref(QFile::encodeName(file->text()).toStdString()));
        message.AddInt32("x", x->value());
        message.AddInt32("y", y->value());
        message.AddInt32("percent", percent->value());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

}  // namespace kirto
