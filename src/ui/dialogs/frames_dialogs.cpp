#include "ui/dialogs/frames_dialogs.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <algorithm>

#include "animation/pauses.h"
#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/leading_key.h"

namespace kirto {

namespace {

QString AllOrSelected(const Animation& shown) {
    const int32 several = shown.several.Count();
    return several > 0 ? UiText::tr("Works on the %1 selected frames.").arg(several)
                       : UiText::tr("Works on all %1 frames, since only one is selected.")
                             .arg(shown.frames.Size());
}

// The frames that are selected, to be typed over.
QLineEdit* AddRange(FormDialog& dialog, const Animation& shown) {
    auto* range = new QLineEdit(QString::fromStdString(TextOf(shown.Selection())), &dialog);
    range->setObjectName("Range");
    dialog.AddField(UiText::tr("&Frames:"), range);
    range->setFocus();
    range->selectAll();
    QObject::connect(range, &QLineEdit::textChanged, &dialog, &FormDialog::Check);
    return range;
}

BMessage WithNumber(uint32 code, const char* field, int32 number) {
    BMessage message(code);
    message.AddInt32(field, number);
    return message;
}

}  // namespace

void AskForEveryNth(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    const int last = shown.frames.Size() - 1;
    auto* dialog =
        new FormDialog("SelectEvery", UiText::tr("Select Every Nth"),
                       UiText::tr("Selects among all frames. The first frame is frame 0."), parent);
    auto* first = dialog->AddNumber("First", UiText::tr("&Beginning with frame:"), 0, last, 0);
    auto* step = dialog->AddNumber("Step", UiText::tr("&Every:"), 1, last + 1, 2);
    const auto make = [=]() -> std::optional<BMessage> {
        BMessage message(kSelectFrames);
        message.AddString("frames", TextOf(FrameSet::Of(first->value(), last, step->value())));
        return message;
    };
    dialog->Open(make, std::move(receive));
}

void AskForRange(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    const int32 count = shown.frames.Size();
    auto* dialog = new FormDialog(
        "SelectRange", UiText::tr("Select Range"),
        UiText::tr(
            "Frames are numbered from 0 to %1, or from the end: the last is -1. Examples: 3-7, "
            "0-20/2 for every second one, 0,4,7, all.")
            .arg(count - 1),
        parent);
    auto* field = AddRange(*dialog, shown);
    const auto make = [=]() -> std::optional<BMessage> {
        const std::string text = field->text().toStdString();
        if (!ParseFrameSet(text, count)) return std::nullopt;
        BMessage message(kSelectFrames);
        message.AddString("frames", text);
        return message;
    };
    dialog->Open(make, std::move(receive));
}

void AskForFrame(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    const int32 last = shown.frames.Size() - 1;
    auto* dialog = new FormDialog(
        "GoToFrame", UiText::tr("Go to Frame"),
        UiText::tr("Makes a frame the current one. They are numbered from 0 to %1.").arg(last),
        parent);
    auto* number = dialog->AddNumber("Number", UiText::tr("&Frame:"), 0, last, shown.selected);
    number->setFocus();
    number->selectAll();
    const auto make = [=]() -> std::optional<BMessage> {
        return WithNumber(kSelectFrame, "number", number->value());
    };
    dialog->Open(make, std::move(receive));
}

void AskForDropping(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    auto* dialog = new FormDialog(
        "DropEvery", UiText::tr("Drop Every Nth"),
        AllOrSelected(shown) +
            UiText::tr(" The frame before each one that goes is shown for as long as both were."),
        parent);
    auto* number = dialog->AddNumber("Step", UiText::tr("&Drop every:"), 2,
                                     std::max(shown.frames.Size(), 2), 2);
    const auto make = [=]() -> std::optional<BMessage> {
        return WithNumber(kDropEveryNth, "number", number->value());
    };
    dialog->Open(make, std::move(receive));
}

void AskForTolerance(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    auto* dialog = new FormDialog(
        "RemoveDuplicates", UiText::tr("Remove Duplicates"),
        AllOrSelected(shown) + UiText::tr(" A frame that shows what the one before shows "
                                          "is removed, and its pause added to that one."),
        parent);
    auto* tolerance = dialog->AddNumber("Tolerance", UiText::tr("&Tolerance:"), 0, 255, 0);
    tolerance->setToolTip(
        UiText::tr("By how much red, green and blue of a pixel may differ; 0: not at all"));
    const auto make = [=]() -> std::optional<BMessage> {
        return WithNumber(kRemoveDuplicates, "tolerance", tolerance->value());
    };
    dialog->Open(make, std::move(receive));
}

void AskForPlace(const Animation& shown, QWidget* parent, FormDialog::Receiver receive) {
    const int32 count = shown.frames.Size();
    auto* dialog = new FormDialog(
        "MoveTo", UiText::tr("Move To"),
        UiText::tr("Frames are numbered from 0 to %1; %2 is behind the last. Both at "
                   "once: 3-7>12.")
            .arg(count - 1)
            .arg(count),
        parent);
    auto* frames = AddRange(*dialog, shown);
    auto* place = dialog->AddNumber("Place", UiText::tr("&Before frame:"), 0, count, 0);
    new LeadingKey(frames, '>', place);
    frames->setFocus();
    const auto make = [=]() -> std::optional<BMessage> {
        const std::string text = frames->text().toStdString();
        if (!ParseFrameSet(text, count)) return std::nullopt;
        BMessage message = WithNumber(kMoveFramesTo, "position", place->value());
        message.AddString("frames", text);
        return message;
    };
    dialog->Open(make, std::move(receive));
}

void AskForPause(const Animation& shown, bool in_seconds, QWidget* parent,
                 FormDialog::Receiver receive) {
    auto* dialog = new FormDialog(
        "SetPause", UiText::tr("Set Pause"),
        QString(UiText::tr("In milliseconds (40ms), frames per second (15fps), percent of what it "
                           "is (150%), or "
                           "without a unit in %1. Browsers play pauses below 20ms slower."))
            .arg(in_seconds ? UiText::tr("seconds") : UiText::tr("hundredths of a second")),
        parent);
    const double pause = shown.CurrentFrame() ? shown.PauseOf(*shown.CurrentFrame()) : 0;
    auto* value = new QLineEdit(
        QString::number(pause * kMillisecondsPerSecond / PauseUnitsPerSecond(in_seconds)) + "ms",
        dialog);
    value->setObjectName("Value");
    dialog->AddField(UiText::tr("&Pause:"), value);
    const int32 several = shown.several.Count();
    auto* selected =
        new QRadioButton(several > 0 ? UiText::tr("Of the %1 &selected frames").arg(several)
                                     : UiText::tr("Of the &current frame"),
                         dialog);
    selected->setObjectName("Selected");
    auto* all = new QRadioButton(UiText::tr("Of &all %1 frames").arg(shown.frames.Size()), dialog);
    all->setObjectName("All");
    (several > 0 ? selected : all)->setChecked(true);
    auto* own = new QCheckBox(UiText::tr("Also frames with a pause of their &own"), dialog);
    own->setObjectName("Own");
    own->setChecked(true);
    for (QWidget* field : std::initializer_list<QWidget*>{selected, all, own})
        dialog->AddWide(field);
    value->setFocus();
    value->selectAll();
    QObject::connect(value, &QLineEdit::textChanged, dialog, &FormDialog::Check);
    const auto make = [=]() -> std::optional<BMessage> {
        const std::string text = value->text().remove(' ').toStdString();
        if (!ParsePauseChange(text)) return std::nullopt;
        BMessage message(kSetPauses);
        message.AddString("pause", text);
        message.AddBool("all", all->isChecked());
        message.AddBool("own", own->isChecked());
        return message;
    };
    dialog->Open(make, std::move(receive));
}

}  // namespace kirto
