#include "ui/shell/tool_bar.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>

#include "kit/qt/ui_text.h"
#include "ui/controls/menu_names.h"
#include "ui/shell/tool_icon.h"
#include "ui/shell/window_state.h"

namespace kirto {

namespace {

struct Tool {
    const char* menu;   // its English title, without &
    const char* item;   // its English label there, without &
    const char* label;  // on the tool bar
    const char* tip;
    ToolSymbol symbol;
};

constexpr Tool kTools[] = {
    {"File", "Open...", UiText::Later("Open"), UiText::Later("Open an animation"),
     ToolSymbol::kFolder},
    {"Frame", "Insert...", UiText::Later("Insert"), UiText::Later("Insert images as frames"),
     ToolSymbol::kFrameAndPlus},
    {"Edit", "Undo", UiText::Later("Undo"), UiText::Later("Take the last change back"),
     ToolSymbol::kTurnBack},
    {"Edit", "Redo", UiText::Later("Redo"), UiText::Later("Make it again"),
     ToolSymbol::kTurnForward},
    {"View", "Play or Pause", UiText::Later("Play"),
     UiText::Later("Play the animation, or pause it"), ToolSymbol::kTriangle},
    {"File", "Save As...", UiText::Later("Save As"),
     UiText::Later("Save under another name or as images"), ToolSymbol::kArrowIntoTray},
    {"Animation", "Export...", UiText::Later("Export"),
     UiText::Later("Write as another format, or smaller"), ToolSymbol::kArrowOutOfTray},
    {"View", "Preview", UiText::Later("Preview"),
     UiText::Later("Show the animation in the browser"), ToolSymbol::kWindow},
};

// Null for none.
QMenu* MenuOf(const QMenuBar& bar, const QString& title) {
    for (const QAction* action : bar.actions()) {
        if (EnglishNameOf(*action) == title) return action->menu();
    }
    return nullptr;
}

QAction* ItemOf(const QMenu& menu, const QString& label) {
    for (QAction* action : menu.actions()) {
        if (EnglishNameOf(*action) == label) return action;
    }
    return nullptr;
}

// What the tool does, and its key, which may change.
void ShowTip(QAction& action, const QString& tip) {
    const QString key = action.shortcut().toString(QKeySequence::NativeText);
    action.setToolTip(key.isEmpty() ? tip : tip + " (" + key + ")");
}

// The menu's item itself, so that it is enabled and named alike.
void AddTool(const Tool& tool, const QMenuBar& bar, QToolBar& tools) {
    const QMenu* menu = MenuOf(bar, tool.menu);
    QAction* action = menu ? ItemOf(*menu, tool.item) : nullptr;
    if (!action) return;
    action->setIcon(MakeToolIcon(tool.symbol));
    action->setIconVisibleInMenu(false);
    const QString label = UiText::tr(tool.label);
    const QString tip = UiText::tr(tool.tip);
    action->setIconText(label);
    ShowTip(*action, tip);
    QObject::connect(action, &QAction::changed, &tools, [action, tip] { ShowTip(*action, tip); });
    tools.addAction(action);
    // Other controls have the same labels.
    tools.widgetForAction(action)->setAccessibleName(UiText::tr("%1 (tool bar)").arg(label));
}

}  // namespace

QToolBar* AddToolBar(QMainWindow& window) {
    auto* tools = new QToolBar(UiText::tr("Tool Bar"), &window);
    tools->setObjectName("Tools");
    tools->setMovable(false);
    const int style = window.style()->styleHint(QStyle::SH_ToolButtonStyle, nullptr, tools);
    tools->setToolButtonStyle(static_cast<Qt::ToolButtonStyle>(style));
    for (const Tool& tool : kTools)
        AddTool(tool, *window.menuBar(), *tools);
    window.addToolBar(tools);

    QAction* shown = tools->toggleViewAction();
    shown->setText(UiText::tr("&Tool Bar"));
    shown->setMenuRole(QAction::NoRole);
    if (QMenu* view = MenuOf(*window.menuBar(), "View")) view->addAction(shown);
    tools->setVisible(RestoreToolBar());
    QObject::connect(shown, &QAction::triggered, tools, [](bool on) { StoreToolBar(on); });
    return tools;
}

}  // namespace kirto
