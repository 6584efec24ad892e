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
    bool shift = false;  // with the key
};

constexpr const char* kNeedsFrame = "needs_frame";
constexpr const char* kReverse = "Reverse";
constexpr const char* kPlayer = "Player";
constexpr const char* kLabels = "Labels";

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

// Below "Undo" and "Redo".
constexpr Item kEditItems[] = {
    {},
    {"Cu&t", 'X', kMenuCut, true},
    {"&Copy", 'C', kMenuCopy, true},
    {"&Paste", 'V', kMenuPaste},
    {"&Duplicate", 'U', kDuplicateFrames, true, true},
    {"&Move To...", 'B', kMenuMoveTo, true},
    {},
    {"Select &All", 'A', kMenuSelectAll, true, true},
    {"Select &None", 0, kMenuSelectNone, true},
    {"&Invert Selection", 'I', kMenuInvertSelection, true, true},
    {"Select &Every Nth...", 0, kMenuSelectEvery, true},
    {"Select Ran&ge...", 'G', kMenuSelectRange, true},
    {"Go to &Frame...", 'J', kMenuGoToFrame, true},
};

constexpr Item kViewItems[] = {
    {"&Preview", 'P', kPreview, true},
    {"Toggle &Mode", 'M', kToggleMode},
    {},
    {"P&references...", 0, kMenuPreferences},
    {},
    {"Show Pla&yer", 'P', kShowPlayer, false, true},
    {"Pl&ay or Pause", 'K', kPlay, true},
    {"Hide Frame &Labels", 0, kShowLabels},
    {"&Colors...", 0, kShowColors},
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

constexpr Item kAnimationItems[] = {
    {"&Insert Animation...", 0, kMenuInsertAnimation},
    {"E&xport...", 'E', kMenuExport, true},
    {"Export &Sheet...", 0, kMenuExportSheet, true},
    {},
    {"Set &Pause...", 'L', kMenuSetPause, true},
    {},
    {"&Forward and Back", 0, kForwardAndBack, true},
    {"Shift Start to Curre&nt Frame", 0, kStartAtCurrent, true},
    {"Remove D&uplicates...", 0, kMenuRemoveDuplicates, true},
    {"&Drop Every Nth...", 0, kMenuDropEvery, true},
    {},
    {"&Resize Animation...", 0, kMenuResize, true},
    {"&Crop...", 0, kMenuCrop, true},
    {"Can&vas Size...", 0, kMenuCanvasSize, true},
    {"Rotate Ri&ght", 0, kMenuRotateRight, true},
    {"Rotate &Left", 0, kMenuRotateLeft, true},
    {"Flip &Horizontally", 0, kMenuFlipAcross, true},
    {"Flip Verticall&y", 0, kMenuFlipDown, true},
    {},
    {"Fit Fra&mes to Animation...", 0, kMenuFitFrames, true},
    {"&Adjust Colors...", 0, kMenuAdjustColors, true},
    {"&Opacity...", 0, kMenuOpacity, true},
    {"Overlay Imag&e...", 0, kMenuOverlay, true},
    {"&Text...", 0, kMenuText, true},
    {"Ma&ke Transparent...", 0, kMenuMakeTransparent, true},
};

// Otherwise a desktop may take "Quit" and its like for items of its own.
QAction* AddItem(QMenu& menu, const char* label, uint32 command, const MenuCommand& choose) {
    QAction* action = menu.addAction(QString::fromUtf8(label));
    action->setMenuRole(QAction::NoRole);
    QObject::connect(action, &QAction::triggered, [choose, command] { choose(command); });
    return action;
}

template <size_t Count>
void AddItems(QMenu& menu, const Item (&items)[Count], const MenuCommand& choose) {
    for (const Item& item : items) {
        if (!item.label) {
            menu.addSeparator();
            continue;
        }
        QAction* action = AddItem(menu, item.label, item.command, choose);
        const Qt::Modifiers keys = item.shift ? Qt::CTRL | Qt::SHIFT : Qt::Modifiers(Qt::CTRL);
        if (item.key != 0) action->setShortcut(QKeyCombination(keys, Qt::Key(item.key)));
        action->setProperty(kNeedsFrame, item.needs_frame);
        if (item.command == kReverseFrames) action->setObjectName(kReverse);
        if (item.command == kShowPlayer) action->setObjectName(kPlayer);
        if (item.command == kShowLabels) action->setObjectName(kLabels);
    }
}

template <size_t Count>
void AddMenu(QMenuBar& bar, const char* title, const Item (&items)[Count],
             const MenuCommand& choose) {
    AddItems(*bar.addMenu(QString::fromUtf8(title)), items, choose);
}

void AddEditMenu(QMenuBar& bar, const MenuCommand& choose) {
    QMenu* menu = bar.addMenu("&Edit");
    QAction* undo = AddItem(*menu, "&Undo", kUndo, choose);
    undo->setObjectName("Undo");
    undo->setShortcut(Qt::CTRL | Qt::Key_Z);
    QAction* redo = AddItem(*menu, "&Redo", kRedo, choose);
    redo->setObjectName("Redo");
    redo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    AddItems(*menu, kEditItems, choose);
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
    AddMenu(*bar, "&Animation", kAnimationItems, choose);
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

void ShowReversing(QMenuBar& menu_bar, bool selected) {
    menu_bar.findChild<QAction*>(kReverse)->setText(selected ? "Re&verse Selected"
                                                             : "Re&verse All");
}

void ShowPlayer(QMenuBar& menu_bar, bool shown) {
    menu_bar.findChild<QAction*>(kPlayer)->setText(shown ? "Hide Pla&yer" : "Show Pla&yer");
}

void ShowLabels(QMenuBar& menu_bar, bool shown) {
    menu_bar.findChild<QAction*>(kLabels)->setText(shown ? "Hide Frame &Labels"
                                                         : "Show Frame &Labels");
}

void EnableFrameItems(QMenuBar& menu_bar, bool enable) {
    for (const QMenu* menu : menu_bar.findChildren<QMenu*>()) {
        for (QAction* action : menu->actions()) {
            if (action->property(kNeedsFrame).toBool()) action->setEnabled(enable);
        }
    }
}

}  // namespace kirto
