#include "ui/shell/help_menu.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <memory>

#include "base/directories.h"
#include "base/types.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/menu_names.h"
#include "ui/help/guide_window.h"
#include "ui/shortcuts/menu_shortcuts.h"
#include "ui/shortcuts/shortcuts_dialog.h"

namespace kirto {

void AddHelpMenu(QMenuBar& bar, const MenuCommand& choose) {
    QMenu* menu = bar.addMenu(QString());
    const auto name = [](QAction* action, const char* label) {
        action->setText(UiText::tr(label));
        SetEnglishName(*action, label);
        return action;
    };
    name(menu->menuAction(), UiText::Later("&Help"));
    QAction* guide = name(menu->addAction(QString()), UiText::Later("&Guide"));
    guide->setShortcut(Qt::Key_F1);
    QAction* keys = name(menu->addAction(QString()), UiText::Later("&Keyboard Shortcuts..."));
    menu->addSeparator();
    QAction* about = name(menu->addAction(QString()), UiText::Later("&About..."));
    for (QAction* action : menu->actions())
        action->setMenuRole(QAction::NoRole);

    // Beside the settings.
    const std::string path = SettingsDirectory() + "/Kirto_keys.ini";
    const auto shortcuts = std::make_shared<MenuShortcuts>(bar, QFile::decodeName(path.c_str()));
    // Windows open once the menu has closed and let the keyboard go.
    QObject::connect(
        guide, &QAction::triggered, &bar, [&bar] { ShowGuide(bar.window()); },
        Qt::QueuedConnection);
    QObject::connect(
        keys, &QAction::triggered, &bar,
        [&bar, shortcuts] { ShowShortcuts(shortcuts, bar.window()); }, Qt::QueuedConnection);
    QObject::connect(about, &QAction::triggered, [choose] { choose(B_ABOUT_REQUESTED); });
}

}  // namespace kirto
