#include "ui/shell/main_menu.h"

#include <QAction>

#include "document/command_codes.h"

namespace kirto {

namespace {

// A separator has no label.
struct Item {
    const char* label = nullptr;  // with & before the key that chooses it in the open menu
    char key = 0;                 // with Ctrl; 0 for none
    uint32 command = 0;
    bool needs_frame = false;
};

constexpr const char* kNeedsFrame = "needs_frame";

constexpr Item kFileItems[] = {
    {"&New", 'N', kMenuNew},
    {"&Open...", 'O', kMenuOpen},
    {},
    {"&Save", 'S', kMenuSave},
    {"Save &As...", 'A', kMenuSaveAs, true},
    {},
    {"A&bout...", 0, B_ABOUT_REQUESTED},
    {},
    {"&Quit", 'Q', B_QUIT_REQUESTED},
};

constexpr Item kViewItems[] = {
    {"&Preview", 'P', kPreview, true},
    {"Toggle &Mode", 'M', kToggleMode},
    {},
    {"P&references...", 0, kMenuPreferences},
};

constexpr Item kFrameItems[] = {
    {"&Insert...", 'I', kMenuInsert},
    {"Insert &Tiled...", 'T', kMenuInsertTiled},
    {"&Remove", 'R', kRemoveFrame, true},
    {},
    {"Move &Up", 'U', kMoveFrameUp, true},
    {"Move &Down", 'D', kMoveFrameDown, true},
    {"Re&verse All", 0, kReverseFrames, true},
    {},
    {"&Fade Effects...", 'F', kMenuFadeEffects, true},
};

// Otherwise a desktop may take "Quit" and its like for items of its own.
QAction* AddItem(QMenu& menu, const char* label, uint32 command, const MenuCommand& choose) {
    QAction* action = menu.addAction(QString::fromUtf8(label));
    action->setMenuRole(QAction::NoRole);
    QObject::connect(action, &QAction::triggered, [choose, command] { choose(command); });
    return action;
}

template <size_t Count>
void AddMenu(QMenuBar& bar, const char* title, const Item (&items)[Count],
             const MenuCommand& choose) {
    QMenu* menu = bar.addMenu(QString::fromUtf8(title));
    for (const Item& item : items) {
        if (!item.label) {
            menu->addSeparator();
            continue;
        }
        QAction* action = AddItem(*menu, item.label, item.command, choose);
        if (item.key != 0) action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(item.key)));
        action->setProperty(kNeedsFrame, item.needs_frame);
    }
}

void AddEditMenu(QMenuBar& bar, const MenuCommand& choose) {
    QMenu* menu = bar.addMenu("&Edit");
    QAction* undo = AddItem(*menu, "&Undo", kUndo, choose);
    undo->setObjectName("Undo");
    undo->setShortcut(Qt::CTRL | Qt::Key_Z);
    QAction* redo = AddItem(*menu, "&Redo", kRedo, choose);
    redo->setObjectName("Redo");
    redo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
}

void NameEdit(const QMenuBar& menu_bar, const char* label, const std::string& edit) {
    auto* action = menu_bar.findChild<QAction*>(label);
    const QString name = QString::fromStdString(edit);
    action->setText("&" + QString(label) + (name.isEmpty() ? name : " " + name));
    action->setEnabled(!name.isEmpty());
}

}  // namespace

QMenuBar* MakeMainMenu(QWidget* parent, const MenuCommand& choose) {
    auto* bar = new QMenuBar(parent);
    bar->setObjectName("MenuBar");
    AddMenu(*bar, "&File", kFileItems, choose);
    AddEditMenu(*bar, choose);
    AddMenu(*bar, "&View", kViewItems, choose);
    AddMenu(*bar, "F&rame", kFrameItems, choose);
    EnableFrameItems(*bar, false);
    ShowHistory(*bar, {}, {});
    return bar;
}

void ShowHistory(QMenuBar& menu_bar, const std::string& undo_name, const std::string& redo_name) {
    NameEdit(menu_bar, "Undo", undo_name);
    NameEdit(menu_bar, "Redo", redo_name);
}

void EnableUndo(QMenuBar& menu_bar) {
    menu_bar.findChild<QAction*>("Undo")->setEnabled(true);
}

void EnableFrameItems(QMenuBar& menu_bar, bool enable) {
    for (const QMenu* menu : menu_bar.findChildren<QMenu*>()) {
        for (QAction* action : menu->actions()) {
            if (action->property(kNeedsFrame).toBool()) action->setEnabled(enable);
        }
    }
}

}  // namespace kirto
