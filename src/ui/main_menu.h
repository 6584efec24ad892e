// The main window's menu bar.
#pragma once

#include <QMenuBar>
#include <functional>

#include "platform/types.h"

namespace kirto {

// Called with the command of the item that the user chose.
using MenuCommand = std::function<void(uint32 command)>;

// The whole menu bar, named "MenuBar". GUI thread; the parent owns it.
QMenuBar* MakeMainMenu(QWidget* parent, const MenuCommand& choose);

// Enables the items that need a frame, or disables them.
void EnableFrameItems(QMenuBar& menu_bar, bool enable);

}  // namespace kirto
