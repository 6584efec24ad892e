// The menu of the animations that were opened or saved last.
#pragma once

#include <QMainWindow>

#include "kit/messenger.h"
#include "ui/controls/recent_list.h"

namespace kirto {

// Adds the menu "Open Recent" to the menu "File", below "Open...", and to the tool bar's "Open".
// application: is told which file to open. The window has both bars; the list outlives it. GUI
// thread.
void AddRecentMenu(QMainWindow& window, RecentList& list, const BMessenger& application);

}  // namespace kirto
