// The menu "Help", the last of the menu bar.
#pragma once

#include "ui/shell/main_menu.h"

namespace kirto {

// Adds the menu to the main window's menu bar, which has all others, and gives the items of all
// menus the keys that the user has chosen for them. choose: receives the command of items that are
// the window's. GUI thread.
void AddHelpMenu(QMenuBar& bar, const MenuCommand& choose);

}  // namespace kirto
