#include "ui/dialogs/picture_area_dialogs.h"

#include <QColor>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <algorithm>
#include <array>
#include <limits>
#include <vector>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/picture_area.h"

namespace kirto {

namespace {

// The numbers are those of the command's field "trim".
constexpr int kTrimTransparent = 0;
constexpr int kTrimToChanges = 1;

struct Ratio {
    const char* name;
    double value;  // width to height; 0 for any
};
constexpr Ratio kRatios[] = {{UiText::Later("any"), 0}, {"1 : 1", 1},         {"4 : 3", 4.0 / 3},
                             {"3 : 2", 3.0 / 2},        {"16 : 9", 16.0 / 9}, {"3 : 4", 3.0 / 4},
                             {"9 : 16", 9.0 / 16},      {"2 : 3", 2.0 / 3}};

// Left, top, width and height.
using Sides = std::array<QSpinBox*, 4>;

Sides AddSides(FormDialog& dialog, const QRect& area) {
    constexpr const char* kNames[] = {"Left", "Top", "Width", "Height"};
    constexpr const char* kLabels[] = {UiText::Later("&Left:"), UiText::Later("&Top:"),
                                       UiText::Later("&Width:"), UiText::Later("&Height:")};
    const std::array<int, 4> first = {0, 0, 1, 1};
    const std::array<int, 4> last = {area.width() - 1, area.height() - 1, area.width(),
                                     area.height()};
    const std::array<int, 4> values = {0, 0, area.width(), area.height()};
    Sides sides{};
    for (size_t i = 0; i < sides.size(); ++i) {
        sides[i] = new QSpinBox(&dialog);
        sides[i]->setObjectName(kNames[i]);
        sides[i]->setRange(first[i], last[i]);
        sides[i]->setValue(values[i]);
        dialog.AddField(UiText::tr(kLabels[i]), sides[i]);
    }
    return sides;
}

// Its right and bottom edges are numbers, too, however large the canvas is.
QRect AreaIn(const Sides& sides) {
    constexpr int kMost = std::numeric_limits<int>::max();
    const int left = sides[0]->value();
    const int top = sides[1]->value();
    return {left, top, std::min(sides[2]->value(), kMost - left),
            std::min(sides[3]->value(), kMost - top)};
}

void Show(const Sides& sides, const QRect& area) {
    const std::array<int, 4> values = {area.left(), area.top(), area.width(), area.height()};
    for (size_t i = 0; i < sides.size(); ++i) {
        const QSignalBlocker blocker(sides[i]);
        sides[i]->setValue(values[i]);
    }
}

void AddRatios(FormDialog& dialog, PictureArea& picture) {
    auto* menu = new QComboBox(&dialog);
    menu->setObjectName("Ratio");
    for (const Ratio& ratio : kRatios)
        menu->addItem(UiText::tr(ratio.name));
    dialog.AddField(UiText::tr("&Ratio:"), menu);
    QObject::connect(menu, &QComboBox::currentIndexChanged, &picture, [&picture](int chosen) {
        const double ratio = kRatios[chosen].value;
        picture.KeepRatio(ratio > 0 ? std::optional(ratio) : std::nullopt);
    });
}

// Buttons that find the part by themselves.
void AddTrims(FormDialog& dialog, const FormDialog::Receiver& receive) {
    auto* row = new QWidget(&dialog);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    const auto add = [&](const char* name, const QString& label, int trim) {
        auto* button = new QPushButton(label, row);
        button->setObjectName(name);
        button->setAutoDefault(false);
        layout->addWidget(button);
        QObject::connect(button, &QPushButton::clicked, &dialog, [&dialog, receive, trim] {
            BMessage message(kCropAnimation);
            message.AddInt32("trim", trim);
            receive(message);
            dialog.accept();
        });
    };
    add("TrimTransparent", UiText::tr("Trim Transparent &Edges"), kTrimTransparent);
    add("TrimToChanges", UiText::tr("Trim to &Changes"), kTrimToChanges);
    dialog.AddWide(row);
}

// The pixel of the frame that stands there on the canvas; invalid where it has none.
QColor ColorAt(const Frame& frame, QPoint point) {
    const int64 x = int64{point.x()} - frame.x_offset;
    const int64 y = int64{point.y()} - frame.y_offset;
    const Picture& picture = *frame.bitmap;
    if (!picture.HasRows() || x < 0 || y < 0 || x >= picture.Width() || y >= picture.Height())
        return {};
    std::vector<uint8> row(static_cast<size_t>(picture.Width()) * 4);
    picture.ReadRow(static_cast<int32>(y), row.data());
    uint8* pixel = row.data() + static_cast<size_t>(x) * 4;
    const color_space space = picture.ColorSpace();
    if (space == B_RGB32_BIG || space == B_RGBA32_BIG) std::reverse(pixel, pixel + 4);
    return {pixel[2], pixel[1], pixel[0]};
}

}  // namespace

void AskForCrop(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    auto* dialog =
        new FormDialog("CropAnimation", UiText::tr("Crop"),
                       UiText::tr("Works on all frames and the canvas. Draw a rectangle on the "
                                  "picture, or type where it is."),
                       parent);
    const QRect canvas(0, 0, std::max(shown.width, 1), std::max(shown.height, 1));
    auto* picture = new PictureArea(shown, dialog);
    dialog->AddWide(picture);
    const Sides sides = AddSides(*dialog, canvas);
    AddRatios(*dialog, *picture);
    AddTrims(*dialog, receive);
    picture->LetDraw([=](const QRect& area) {
        Show(sides, area);
        dialog->Check();
    });
    for (QSpinBox* side : sides) {
        QObject::connect(side, &QSpinBox::valueChanged, dialog, [=] {
            picture->ShowArea(AreaIn(sides));
            dialog->Check();
        });
    }
    sides[0]->setFocus();
    sides[0]->selectAll();
    const auto make = [=]() -> std::optional<BMessage> {
        const QRect area = AreaIn(sides) & canvas;
        if (area.isEmpty() || area == canvas) return std::nullopt;
        BMessage message(kCropAnimation);
        message.AddInt32("left", area.left());
        message.AddInt32("top", area.top());
        message.AddInt32("width", area.width());
        message.AddInt32("height", area.height());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

void AskForTransparentColor(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    const int32 several = shown.several.Count();
    const QString scope = several > 0 ? UiText::tr("the %1 selected frames").arg(several)
                                      : UiText::tr("the current frame");
    auto* dialog = new FormDialog(
        "MakeTransparent", UiText::tr("Make Transparent"),
        UiText::tr("Works on %1. Click on the color in the picture, or type it.").arg(scope),
        parent);
    auto* picture = new PictureArea(shown, dialog);
    dialog->AddWide(picture);
    auto* color = new QLineEdit(dialog);
    color->setObjectName("Color");
    color->setPlaceholderText("#rrggbb");
    dialog->AddField(UiText::tr("&Color:"), color);
    auto* tolerance = new QSpinBox(dialog);
    tolerance->setObjectName("Tolerance");
    tolerance->setRange(0, 255);
    dialog->AddField(UiText::tr("&Tolerance:"), tolerance);
    picture->LetClick([=, frame = shown.CurrentFrame()](QPoint point) {
        const QColor clicked = ColorAt(*frame, point);
        if (clicked.isValid()) color->setText(clicked.name());
    });
    QObject::connect(color, &QLineEdit::textChanged, dialog, &FormDialog::Check);
    color->setFocus();
    const auto make = [=]() -> std::optional<BMessage> {
        const QColor typed(color->text());
        if (!typed.isValid()) return std::nullopt;
        BMessage message(kMakeTransparent);
        message.AddInt32("color", static_cast<int32>(typed.rgb() << 8));
        message.AddInt32("tolerance", tolerance->value());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

}  // namespace kirto
