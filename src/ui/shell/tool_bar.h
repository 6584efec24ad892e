// The main window's tool bar.
#pragma once

#include <QMainWindow>
#include <QToolBar>

namespace kirto {

// Adds a tool bar with the items of the menu bar that are used most, with text beside the symbols
// as the desktop has it, and an item to the menu "View" that hides it, which is remembered. The
// window has its menu bar. GUI thread; the window owns it.
QToolBar* AddToolBar(QMainWindow& window);

}  // namespace kirto
