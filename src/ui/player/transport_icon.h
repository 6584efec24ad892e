#pragma once

#include <QIcon>

namespace kirto {

enum class TransportSymbol { kToStart, kBack, kPlay, kPause, kForward, kToEnd };

// The symbol, drawn in the colors of the application's palette at the time and in any size. GUI
// thread.
QIcon MakeTransportIcon(TransportSymbol symbol);

}  // namespace kirto
