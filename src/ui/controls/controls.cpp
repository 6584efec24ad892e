#include "ui/controls/controls.h"

#include "color/palette.h"

namespace kirto {

namespace {

constexpr int kCommandRole = Qt::UserRole;
constexpr int kValueRole = Qt::UserRole + 1;

QString Text(const char* text) {
    return QString::fromUtf8(text);
}

template <typename Button>
Button* MakeAnyButton(const char* name, const QString& label, uint32 command,
                      const BMessenger& target, QWidget* parent) {
    auto* button = new Button(label, parent);
    button->setObjectName(Text(name));
    button->setAccessibleName(label);
    QObject::connect(button, &QAbstractButton::clicked,
                     [command, target] { target.SendMessage(command); });
    return button;
}

}  // namespace

QLabel* MakeLabel(const char* name, const QString& text, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setObjectName(Text(name));
    // What is shown may be a name from a file; none of it is markup.
    label->setTextFormat(Qt::PlainText);
    return label;
}

TextControl* MakeField(const char* name, uint32 command, BMessenger target, QWidget* parent) {
    return new TextControl(name, BMessage(command), std::move(target), parent);
}

QCheckBox* MakeCheckBox(const char* name, const QString& label, uint32 command,
                        const BMessenger& target, QWidget* parent) {
    return MakeAnyButton<QCheckBox>(name, label, command, target, parent);
}

QRadioButton* MakeRadioButton(const char* name, const QString& label, uint32 command,
                              const BMessenger& target, QWidget* parent) {
    return MakeAnyButton<QRadioButton>(name, label, command, target, parent);
}

QPushButton* MakeButton(const char* name, const QString& label, uint32 command,
                        const BMessenger& target, QWidget* parent) {
    return MakeAnyButton<QPushButton>(name, label, command, target, parent);
}

QComboBox* MakePopUpMenu(const char* name, const std::vector<MenuChoice>& choices,
                         const BMessenger& target, QWidget* parent) {
    auto* menu = new QComboBox(parent);
    menu->setObjectName(Text(name));
    for (const MenuChoice& choice : choices) {
        menu->addItem(choice.label, choice.command);
        menu->setItemData(menu->count() - 1, choice.value, kValueRole);
    }
    QObject::connect(menu, &QComboBox::activated, [menu, target](int item) {
        target.SendMessage(menu->itemData(item, kCommandRole).toUInt());
    });
    return menu;
}

bool HasChoice(const QComboBox& menu, uint32 command) {
    return menu.findData(command, kCommandRole) >= 0;
}

void MarkChoice(QComboBox& menu, int32 value) {
    menu.setCurrentIndex(menu.findData(value, kValueRole));
}

void MarkPalette(QComboBox& menu, int32 mode) {
    MarkChoice(menu, mode == kPaletteAwaitingFile ? kPaletteFromFile : mode);
}

void SwitchBy(const QCheckBox& box, QWidget& control) {
    control.setEnabled(box.isChecked());
    QObject::connect(&box, &QCheckBox::toggled, &control, &QWidget::setEnabled);
}

void ShowText(QLabel& label, const QString& text) {
    if (label.text() != text) label.setText(text);
}

}  // namespace kirto
