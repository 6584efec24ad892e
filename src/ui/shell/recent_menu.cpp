#include "ui/shell/recent_menu.h"

#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "base/directories.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/menu_names.h"

namespace kirto {

namespace {

QString NumberedName(int number, const QFileInfo& file) {
    // An ampersand of the name is no mnemonic.
    const QString name = file.fileName().replace('&', "&&");
    const QString home = QString::fromStdString(HomeDirectory());
    QString folder = file.path();
    if (folder == home || folder.startsWith(home + '/')) folder.replace(0, home.size(), "~");
    const QString mnemonic = number < 10 ? QString("&%1").arg(number) : QString::number(number);
    return QString("%1  %2  (%3)").arg(mnemonic, name, folder.replace('&', "&&"));
}

void Fill(QMenu& menu, RecentList& list, const BMessenger& application) {
    menu.clear();
    int number = 0;
    for (const RecentFile& file : list.Files()) {
        const QFileInfo info(QString::fromLocal8Bit(file.path.c_str()));
        QAction* action = menu.addAction(NumberedName(++number, info));
        action->setToolTip(info.filePath());
        QObject::connect(
            action, &QAction::triggered,
            [application, command = OpeningOf(file.path)] { application.SendMessage(command); });
    }
    menu.addSeparator();
    QObject::connect(menu.addAction(UiText::tr("&Clear List")), &QAction::triggered,
                     [&list] { list.Clear(); });
    menu.menuAction()->setEnabled(number > 0);
}

// The item of that English label in any menu; null for none.
QAction* ItemOf(const QMenuBar& bar, const QString& label) {
    for (const QAction* title : bar.actions()) {
        if (!title->menu()) continue;
        for (QAction* action : title->menu()->actions()) {
            if (EnglishNameOf(*action) == label) return action;
        }
    }
    return nullptr;
}

// Where the action lies in its menu, so that something can be put behind it.
QAction* Following(const QMenu& menu, const QAction* action) {
    const QList<QAction*> actions = menu.actions();
    return actions.value(actions.indexOf(action) + 1, nullptr);
}

}  // namespace

void AddRecentMenu(QMainWindow& window, RecentList& list, const BMessenger& application) {
    QAction* open_item = ItemOf(*window.menuBar(), "Open...");
    QMenu* file_menu = window.menuBar()->actions().front()->menu();
    auto* menu = new QMenu(UiText::tr("Open &Recent"), &window);
    menu->setObjectName("OpenRecent");
    menu->setToolTipsVisible(true);
    menu->menuAction()->setMenuRole(QAction::NoRole);
    file_menu->insertMenu(Following(*file_menu, open_item), menu);
    const auto fill = [menu, &list, application] { Fill(*menu, list, application); };
    list.Watch(menu, fill);
    fill();

    auto* tools = window.findChild<QToolBar*>("Tools");
    auto* button = qobject_cast<QToolButton*>(tools->widgetForAction(open_item));
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
}

}  // namespace kirto
