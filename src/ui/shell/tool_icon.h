#pragma once

#include <QIcon>

namespace kirto {

enum class ToolSymbol {
    kFolder,
    kFrameAndPlus,
    kTurnBack,
    kTurnForward,
    kTriangle,
    kArrowIntoTray,
    kArrowOutOfTray,
    kWindow
};

// The symbol, drawn in the colors of the application's palette at the time and in any size. GUI
// thread.
QIcon MakeToolIcon(ToolSymbol symbol);

}  // namespace kirto
