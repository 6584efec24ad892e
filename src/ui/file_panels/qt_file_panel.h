#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

#include "app/file_panel.h"
#include "kit/messenger.h"
#include "kit/translator_roster.h"

namespace kirto {

// Makes one of the program's file panels on the toolkit's file dialog. Callable from any thread;
// the panel's threads are FilePanel's.
// target: the application. The roster outlives the panel. parent: the window that can't be used
// while the panel is shown; the panel outlives it. show_preferences: opens the preferences at the
// GIF settings; called on the GUI thread.
std::unique_ptr<FilePanel> MakeQtFilePanel(FilePanelKind kind, BMessenger target,
                                           BTranslatorRoster& roster,
                                           const QPointer<QWidget>& parent,
                                           std::function<void()> show_preferences);

}  // namespace kirto
