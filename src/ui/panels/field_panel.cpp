#include "ui/panels/field_panel.h"

#include <QAbstractItemView>
#include <algorithm>

#include "animation/pauses.h"
#include "document/new_animation.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/check_input.h"

namespace kirto {

namespace {

QString Text(const Field::Value& value) {
    const auto* real = std::get_if<double>(&value);
    return real ? QString::number(*real, 'f', 2) : QString::number(std::get<int32>(value));
}

}  // namespace

FieldPanel::FieldPanel(const char* name, const QString& title, const ShownDocument& shown,
                       const BMessenger& window, QWidget* parent)
    : QGroupBox(title, parent), shown_(shown), window_(window), rows_(new PanelLayout(this)) {
    setObjectName(name);
}

TextControl* FieldPanel::MakeNumber(uint32 command, const QString& tip, QCheckBox* box) {
    const Field* field = FieldOf(command);
    TextControl* number = MakeField(field->name, command, window_, this);
    number->SetText("0");
    number->setToolTip(tip);
    if (box) SwitchBy(*box, *number);
    fields_.push_back({field, number, nullptr, box != nullptr});
    return number;
}

TextControl* FieldPanel::AddNumber(uint32 command, Unit unit, const QString& tip,
                                   const QString& label, QCheckBox* box) {
    TextControl* number = MakeNumber(command, tip, box);
    const QString text =
        label.isEmpty() ? UiText::tr("%1:").arg(UiText::tr(FieldOf(command)->name)) : label;
    rows_->AddField(text, number, MakeUnit(unit));
    return number;
}

TextControl* FieldPanel::AddNumber(uint32 command, Unit unit, const QString& tip, QCheckBox* box) {
    TextControl* number = MakeNumber(command, tip, box);
    rows_->AddField(box, number, MakeUnit(unit));
    return number;
}

QLabel* FieldPanel::MakeUnit(Unit unit) {
    if (unit == Unit::kNone) return nullptr;
    QLabel* label =
        MakeLabel("Unit", unit == Unit::kPixels ? UiText::tr("px") : UiText::tr("1/100 s"), this);
    if (unit == Unit::kPause) pause_unit_ = label;
    return label;
}

void FieldPanel::AddPauseText() {
    pause_text_ = MakeLabel("PauseText", UiText::tr("%1 ms").arg(0), this);
    // It must not make the panel wider and narrower as the number changes.
    pause_text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    pause_text_->setAccessibleDescription(UiText::tr("What the pause is in other units"));
    rows_->AddBelow(pause_text_);
}

// Of the frame that is shown, or of those without a pause of their own.
void FieldPanel::ShowPause(const Animation& animation) {
    const FramePointer frame = animation.CurrentFrame();
    double pause = animation.use_pause ? animation.pause_length : 0;
    if (ShowsFrame()) pause = frame ? animation.PauseOf(*frame) : 0;
    const double milliseconds = pause * kMillisecondsPerSecond /
                                PauseUnitsPerSecond(shown_.Settings().global_pauseinseconds);
    QString text = UiText::tr("%1 ms").arg(milliseconds, 0, 'g', 6);
    if (milliseconds > 0)
        text += UiText::tr(", %1 fps").arg(kMillisecondsPerSecond / milliseconds, 0, 'g', 3);
    kirto::ShowText(*pause_text_, text);
}

QCheckBox* FieldPanel::MakeSwitch(uint32 command, const QString& tip, const QString& label) {
    const Field* field = FieldOf(command);
    QCheckBox* box = MakeCheckBox(field->name, label.isEmpty() ? UiText::tr(field->name) : label,
                                  command, window_, this);
    box->setToolTip(tip);
    fields_.push_back({field, nullptr, box, false});
    return box;
}

QComboBox* FieldPanel::MakePaletteMenu(const std::vector<MenuChoice>& kinds, const QString& tip) {
    palette_menu_ = MakePopUpMenu("PaletteMenuField", kinds, window_, this);
    palette_menu_->view()->setObjectName("WhichPalette");
    palette_menu_->setToolTip(tip);
    return palette_menu_;
}

bool FieldPanel::ShowsFrame() const {
    return std::any_of(fields_.begin(), fields_.end(),
                       [](const Row& row) { return row.field->IsOfFrame(); });
}

void FieldPanel::ResetDisplay() {
    Show(NewAnimation(shown_.Settings()), true);
}

void FieldPanel::Show(const Animation& animation, bool end_edits) {
    if (pause_text_) ShowPause(animation);
    if (pause_unit_)
        kirto::ShowText(*pause_unit_, shown_.Settings().global_pauseinseconds
                                          ? UiText::tr("s")
                                          : UiText::tr("1/100 s"));
    const bool has_frame = animation.CurrentFrame() != nullptr;
    for (const Row& row : fields_) {
        const Field::Value value = row.field->In(animation);
        if (row.field->IsOfFrame() && row.field->IsMixedIn(animation)) {
            ShowMixed(row);
        } else if (row.box) {
            row.box->setTristate(false);
            row.box->setChecked(std::get<bool>(value));
        } else if (end_edits) {
            row.number->SetText(Text(value));
        } else {
            row.number->ShowText(Text(value));
        }
        QWidget* control = row.box ? static_cast<QWidget*>(row.box) : row.number;
        if (row.field->IsOfFrame() && !row.is_switched) control->setEnabled(has_frame);
    }
}

// A click sets the value for all selected frames, and so does a number that is typed.
void FieldPanel::ShowMixed(const Row& row) {
    if (row.box) {
        row.box->setCheckState(Qt::PartiallyChecked);
    } else {
        row.number->setPlaceholderText(UiText::tr("mixed"));
        row.number->ShowText({});
    }
}

bool FieldPanel::ChooseKind(uint32) {
    return true;
}

BMessage FieldPanel::Checked(const Row& row) const {
    const Field& field = *row.field;
    BMessage edit(field.code);
    if (row.box) {
        edit.AddBool("value", row.box->isChecked());
    } else if (field.IsReal()) {
        edit.AddDouble("value", CheckInput(*row.number, 0.0, kNoUpperBoundReal, field.name));
    } else {
        const int32 largest = field.Largest(shown_.Current());
        edit.AddInt32("value", CheckInput(*row.number, 0, largest, field.name));
    }
    return edit;
}

bool FieldPanel::PostEdit(uint32 command, const BMessenger& application) {
    if (palette_menu_ && HasChoice(*palette_menu_, command)) {
        if (!ChooseKind(command)) return false;
        application.SendMessage(command);
        return true;
    }
    const auto row = std::find_if(fields_.begin(), fields_.end(),
                                  [=](const Row& each) { return each.field->code == command; });
    if (row == fields_.end()) return false;
    // What was typed is corrected in any case.
    const BMessage edit = Checked(*row);
    if (row->field->IsOfFrame() && !shown_.CurrentFrame()) return false;
    application.SendMessage(edit);
    return true;
}

}  // namespace kirto
