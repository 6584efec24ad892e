// The main window's menu bar.
#pragma once

#include <QMenuBar>
#include <functional>
#include <string>

#include "base/types.h"

namespace kirto {

// Called with the command of the item that the user chose.
using MenuCommand = std::function<void(uint32 command)>;

// The whole menu bar, named "MenuBar". GUI thread; the parent owns it.
QMenuBar* MakeMainMenu(QWidget* parent, const MenuCommand& choose);

// Names the edits in "Undo" and "Redo"; disables the item if the name is empty.
void ShowHistory(QMenuBar& menu_bar, const std::string& undo_name, const std::string& redo_name);

// Enables "Undo" for an edit that is not in the history yet.
void EnableUndo(QMenuBar& menu_bar);

// Says whether "Reverse" is about the selected frames or about all.
void ShowReversing(QMenuBar& menu_bar, bool selected);

// Says whether the player is hidden or shown by its item.
void ShowPlayer(QMenuBar& menu_bar, bool shown);

// The same of the labels of the thumbnails.
void ShowLabels(QMenuBar& menu_bar, bool shown);

// Enables the items that need a frame, or disables them.
void EnableFrameItems(QMenuBar& menu_bar, bool enable);

}  // namespace kirto
