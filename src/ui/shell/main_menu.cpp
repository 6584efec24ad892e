#include "ui/shell/main_menu.h"

#include <QAction>

#include "document/command_codes.h"
#include "kit/qt/ui_text.h"
#include "ui/controls/menu_names.h"

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
constexpr const char* kUndoLabel = UiText::Later("&Undo");
constexpr const char* kRedoLabel = UiText::Later("&Redo");

constexpr Item kFileItems[] = {
    {UiText::Later("&New"), 'N', kMenuNew},
    {UiText::Later("&Open..."), 'O', kMenuOpen},
    {},
    {UiText::Later("&Save"), 'S', kMenuSave},
    {UiText::Later("Save &As..."), 'A', kMenuSaveAs, true},
    {},
    {UiText::Later("A&bout..."), 0, B_ABOUT_REQUESTED},
    {},
    {UiText::Later("&Quit"), 'Q', B_QUIT_REQUESTED},
};

// Below "Undo" and "Redo".
constexpr Item kEditItems[] = {
    {},
    {UiText::Later("Cu&t"), 'X', kMenuCut, true},
    {UiText::Later("&Copy"), 'C', kMenuCopy, true},
    {UiText::Later("&Paste"), 'V', kMenuPaste},
    {UiText::Later("&Duplicate"), 'U', kDuplicateFrames, true, true},
    {UiText::Later("&Move To..."), 'B', kMenuMoveTo, true},
    {},
    {UiText::Later("Select &All"), 'A', kMenuSelectAll, true, true},
    {UiText::Later("Select &None"), 0, kMenuSelectNone, true},
    {UiText::Later("&Invert Selection"), 'I', kMenuInvertSelection, true, true},
    {UiText::Later("Select &Every Nth..."), 0, kMenuSelectEvery, true},
    {UiText::Later("Select Ran&ge..."), 'G', kMenuSelectRange, true},
    {UiText::Later("Go to &Frame..."), 'J', kMenuGoToFrame, true},
};

constexpr Item kViewItems[] = {
    {UiText::Later("&Preview"), 'P', kPreview, true},
    {UiText::Later("Toggle &Mode"), 'M', kToggleMode},
    {},
    {UiText::Later("P&references..."), 0, kMenuPreferences},
    {},
    {UiText::Later("Show Pla&yer"), 'P', kShowPlayer, false, true},
    {UiText::Later("Pl&ay or Pause"), 'K', kPlay, true},
    {UiText::Later("Hide Frame &Labels"), 0, kShowLabels},
    {UiText::Later("&Colors..."), 0, kShowColors},
};

constexpr Item kFrameItems[] = {
    {UiText::Later("&Insert..."), 'I', kMenuInsert},
    {UiText::Later("Insert &Tiled..."), 'T', kMenuInsertTiled},
    {UiText::Later("&Remove"), 'R', kRemoveFrame, true},
    {},
    {UiText::Later("Move &Up"), 'U', kMoveFrameUp, true},
    {UiText::Later("Move &Down"), 'D', kMoveFrameDown, true},
    {UiText::Later("Re&verse All"), 0, kReverseFrames, true},
    {},
    {UiText::Later("&Fade Effects..."), 'F', kMenuFadeEffects, true},
};

constexpr Item kAnimationItems[] = {
    {UiText::Later("&Insert Animation..."), 0, kMenuInsertAnimation},
    {UiText::Later("E&xport..."), 'E', kMenuExport, true},
    {UiText::Later("Export &Sheet..."), 0, kMenuExportSheet, true},
    {},
    {UiText::Later("Set &Pause..."), 'L', kMenuSetPause, true},
    {},
    {UiText::Later("&Forward and Back"), 0, kForwardAndBack, true},
    {UiText::Later("Shift Start to Curre&nt Frame"), 0, kStartAtCurrent, true},
    {UiText::Later("Remove D&uplicates..."), 0, kMenuRemoveDuplicates, true},
    {UiText::Later("&Drop Every Nth..."), 0, kMenuDropEvery, true},
    {},
    {UiText::Later("&Resize Animation..."), 0, kMenuResize, true},
    {UiText::Later("&Crop..."), 0, kMenuCrop, true},
    {UiText::Later("Can&vas Size..."), 0, kMenuCanvasSize, true},
    {UiText::Later("Rotate Ri&ght"), 0, kMenuRotateRight, true},
    {UiText::Later("Rotate &Left"), 0, kMenuRotateLeft, true},
    {UiText::Later("Flip &Horizontally"), 0, kMenuFlipAcross, true},
    {UiText::Later("Flip Verticall&y"), 0, kMenuFlipDown, true},
    {},
    {UiText::Later("Fit Fra&mes to Animation..."), 0, kMenuFitFrames, true},
    {UiText::Later("&Adjust Colors..."), 0, kMenuAdjustColors, true},
    {UiText::Later("&Opacity..."), 0, kMenuOpacity, true},
    {UiText::Later("Overlay Imag&e..."), 0, kMenuOverlay, true},
    {UiText::Later("&Text..."), 0, kMenuText, true},
    {UiText::Later("Ma&ke Transparent..."), 0, kMenuMakeTransparent, true},
};

// Otherwise a desktop may take "Quit" and its like for items of its own.
QAction* AddItem(QMenu& menu, const char* label, uint32 command, const MenuCommand& choose) {
    QAction* action = menu.addAction(UiText::tr(label));
    SetEnglishName(*action, label);
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
    QMenu* menu = bar.addMenu(UiText::tr(title));
    SetEnglishName(*menu->menuAction(), title);
    AddItems(*menu, items, choose);
}

void AddEditMenu(QMenuBar& bar, const MenuCommand& choose) {
    constexpr const char* kTitle = UiText::Later("&Edit");
    QMenu* menu = bar.addMenu(UiText::tr(kTitle));
    SetEnglishName(*menu->menuAction(), kTitle);
    QAction* undo = AddItem(*menu, kUndoLabel, kUndo, choose);
    undo->setObjectName("Undo");
    undo->setShortcut(Qt::CTRL | Qt::Key_Z);
    QAction* redo = AddItem(*menu, kRedoLabel, kRedo, choose);
    redo->setObjectName("Redo");
    redo->setShortcuts({Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::CTRL | Qt::Key_Y});
    AddItems(*menu, kEditItems, choose);
}

// with_name: the label, with "%1" for the edit's name.
void NameEdit(QAction& action, const char* label, const char* with_name, const std::string& edit) {
    const QString name = edit.empty() ? QString() : UiText::tr(edit.c_str());
    action.setText(edit.empty() ? UiText::tr(label) : UiText::tr(with_name).arg(name));
    action.setEnabled(!edit.empty());
}

}  // namespace

QMenuBar* MakeMainMenu(QWidget* parent, const MenuCommand& choose) {
    auto* bar = new QMenuBar(parent);
    bar->setObjectName("MenuBar");
    AddMenu(*bar, UiText::Later("&File"), kFileItems, choose);
    AddEditMenu(*bar, choose);
    AddMenu(*bar, UiText::Later("&View"), kViewItems, choose);
    AddMenu(*bar, UiText::Later("F&rame"), kFrameItems, choose);
    AddMenu(*bar, UiText::Later("&Animation"), kAnimationItems, choose);
    EnableFrameItems(*bar, false);
    ShowHistory(*bar, {}, {});
    return bar;
}

void ShowHistory(QMenuBar& menu_bar, const std::string& undo_name, const std::string& redo_name) {
    NameEdit(*menu_bar.findChild<QAction*>("Undo"), kUndoLabel, UiText::Later("&Undo %1"),
             undo_name);
    NameEdit(*menu_bar.findChild<QAction*>("Redo"), kRedoLabel, UiText::Later("&Redo %1"),
             redo_name);
}

void EnableUndo(QMenuBar& menu_bar) {
    menu_bar.findChild<QAction*>("Undo")->setEnabled(true);
}

void ShowReversing(QMenuBar& menu_bar, bool selected) {
    menu_bar.findChild<QAction*>(kReverse)->setText(selected ? UiText::tr("Re&verse Selected")
                                                             : UiText::tr("Re&verse All"));
}

void ShowPlayer(QMenuBar& menu_bar, bool shown) {
    menu_bar.findChild<QAction*>(kPlayer)->setText(shown ? UiText::tr("Hide Pla&yer")
                                                         : UiText::tr("Show Pla&yer"));
}

void ShowLabels(QMenuBar& menu_bar, bool shown) {
    menu_bar.findChild<QAction*>(kLabels)->setText(shown ? UiText::tr("Hide Frame &Labels")
                                                         : UiText::tr("Show Frame &Labels"));
}

void EnableFrameItems(QMenuBar& menu_bar, bool enable) {
    for (const QMenu* menu : menu_bar.findChildren<QMenu*>()) {
        for (QAction* action : menu->actions()) {
            if (action->property(kNeedsFrame).toBool()) action->setEnabled(enable);
        }
    }
}

}  // namespace kirto
