#include "ui/main_menu.h"

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

template <size_t Count>
void AddMenu(QMenuBar& bar, const char* title, const Item (&items)[Count],
             const MenuCommand& choose) {
    QMenu* menu = bar.addMenu(QString::fromUtf8(title));
    for (const Item& item : items) {
        if (!item.label) {
            menu->addSeparator();
            continue;
        }
        QAction* action = menu->addAction(QString::fromUtf8(item.label));
        // Otherwise a desktop may take "Quit" and its like for items of its own.
        action->setMenuRole(QAction::NoRole);
        if (item.key != 0) action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key(item.key)));
        action->setProperty(kNeedsFrame, item.needs_frame);
        QObject::connect(action, &QAction::triggered,
                         [choose, command = item.command] { choose(command); });
    }
}

}  // namespace

QMenuBar* MakeMainMenu(QWidget* parent, const MenuCommand& choose) {
    auto* bar = new QMenuBar(parent);
    bar->setObjectName("MenuBar");
    AddMenu(*bar, "&File", kFileItems, choose);
    AddMenu(*bar, "&View", kViewItems, choose);
    AddMenu(*bar, "F&rame", kFrameItems, choose);
    EnableFrameItems(*bar, false);
    return bar;
}

void EnableFrameItems(QMenuBar& menu_bar, bool enable) {
    for (const QMenu* menu : menu_bar.findChildren<QMenu*>()) {
        for (QAction* action : menu->actions()) {
            if (action->property(kNeedsFrame).toBool()) action->setEnabled(enable);
        }
    }
}

}  // namespace kirto
