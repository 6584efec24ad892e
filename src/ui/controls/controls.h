// Functions that make the controls of panels. Every control carries its view name as object name,
// and its label as accessible name where it has one; it sends its command to the target when the
// user changes it, never when the program does. GUI thread; the parent owns the control.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <vector>

#include "kit/messenger.h"
#include "resources/qt/text_control.h"

namespace kirto {

// An item of a pop-up menu: its text, the command it sends and the value it stands for.
struct MenuChoice {
    QString label;
    uint32 command;
    int32 value;
};

QLabel* MakeLabel(const char* name, const QString& text, QWidget* parent);
TextControl* MakeField(const char* name, uint32 command, BMessenger target, QWidget* parent);
QCheckBox* MakeCheckBox(const char* name, const QString& label, uint32 command,
                        const BMessenger& target, QWidget* parent);
QRadioButton* MakeRadioButton(const char* name, const QString& label, uint32 command,
                              const BMessenger& target, QWidget* parent);
QPushButton* MakeButton(const char* name, const QString& label, uint32 command,
                        const BMessenger& target, QWidget* parent);
// Choosing an item sends its command, also when it was chosen already.
QComboBox* MakePopUpMenu(const char* name, const std::vector<MenuChoice>& choices,
                         const BMessenger& target, QWidget* parent);
// True when one of the items sends the command.
bool HasChoice(const QComboBox& menu, uint32 command);
// Marks the item that stands for the value; none when no item does.
void MarkChoice(QComboBox& menu, int32 value);
// Marks the item of the palette's kind, in a menu of PaletteModes. To the user a palette from a
// file and one whose file is being chosen are the same.
void MarkPalette(QComboBox& menu, int32 mode);

// From now on the control can be used while the box is ticked.
void SwitchBy(const QCheckBox& box, QWidget& control);

// Puts the text in, when it differs.
void ShowText(QLabel& label, const QString& text);

}  // namespace kirto
