// What the program remembers of how the player was used.
#pragma once

#include <QSettings>

namespace kirto {

class PlayerView;

// How often and how fast it plays, whether like a browser, the frames shown beside the current one,
// and the zoom. What is missing or makes no sense leaves the player as it is. GUI thread.
void RestorePlayerChoices(const QSettings& state, PlayerView& player);
void StorePlayerChoices(QSettings& state, PlayerView& player);

}  // namespace kirto
