#include "ui/shell/tool_bar.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>

#include "ui/shell/tool_icon.h"
#include "ui/shell/window_state.h"

namespace kirto {

namespace {

struct Tool {
    const char* menu;   // its title, without &
    const char* item;   // its label there, without &
    const char* label;  // on the tool bar
    const char* tip;
    ToolSymbol symbol;
};

constexpr Tool kTools[] = {
    {"File", "Open...", "Open", "Open an animation", ToolSymbol::kFolder},
    {"Frame", "Insert...", "Insert", "Insert images as frames", ToolSymbol::kFrameAndPlus},
    {"Edit", "Undo", "Undo", "Take the last change back", ToolSymbol::kTurnBack},
    {"Edit", "Redo", "Redo", "Make it again", ToolSymbol::kTurnForward},
    {"View", "Play or Pause", "Play", "Play the animation, or pause it", ToolSymbol::kTriangle},
    {"File", "Save As...", "Save As", "Save under another name or as images",
     ToolSymbol::kArrowIntoTray},
    {"Animation", "Export...", "Export", "Write as another format, or smaller",
     ToolSymbol::kArrowOutOfTray},
    {"View", "Preview", "Preview", "Show the animation in the browser", ToolSymbol::kWindow},
};

// Null for none.
QMenu* MenuOf(const QMenuBar& bar, const QString& title) {
    for (const QAction* action : bar.actions()) {
        if (action->text().remove('&') == title) return action->menu();
    }
    return nullptr;
}

QAction* ItemOf(const QMenu& menu, const QString& label) {
    for (QAction* action : menu.actions()) {
        if (action->text().remove('&') == label) return action;
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
    action->setIconText(tool.label);
    ShowTip(*action, tool.tip);
    QObject::connect(action, &QAction::changed, &tools,
                     [action, tip = QString(tool.tip)] { ShowTip(*action, tip); });
    tools.addAction(action);
    // Other controls have the same labels.
    tools.widgetForAction(action)->setAccessibleName(QString("%1 (tool bar)").arg(tool.label));
}

}  // namespace

QToolBar* AddToolBar(QMainWindow& window) {
    auto* tools = new QToolBar("Tool Bar", &window);
    tools->setObjectName("Tools");
    tools->setMovable(false);
    const int style = window.style()->styleHint(QStyle::SH_ToolButtonStyle, nullptr, tools);
    tools->setToolButtonStyle(static_cast<Qt::ToolButtonStyle>(style));
    for (const Tool& tool : kTools)
        AddTool(tool, *window.menuBar(), *tools);
    window.addToolBar(tools);

    QAction* shown = tools->toggleViewAction();
    shown->setText("&Tool Bar");
    shown->setMenuRole(QAction::NoRole);
    if (QMenu* view = MenuOf(*window.menuBar(), "View")) view->addAction(shown);
    tools->setVisible(RestoreToolBar());
    QObject::connect(shown, &QAction::triggered, tools, [](bool on) { StoreToolBar(on); });
    return tools;
}

}  // namespace kirto
