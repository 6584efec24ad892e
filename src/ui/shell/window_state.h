// What the program remembers of its windows besides the settings: how the user divided them.
#pragma once

class QSplitter;

namespace kirto {

class PlayerView;

// Restores the splitter as it was last stored, if it was. GUI thread.
void RestoreSplitter(QSplitter& splitter);
void StoreSplitter(const QSplitter& splitter);

// The same of the splitter between the player and the frames, and of how the player was used.
// Returns whether it was shown when it was stored; false if it was never.
bool RestorePlayer(QSplitter& splitter, PlayerView& player);
void StorePlayer(const QSplitter& splitter, PlayerView& player);

// Whether thumbnails had labels when that was stored; true if it never was.
bool RestoreLabels();
void StoreLabels(bool shown);

// Whether the tool bar was shown when that was last stored; true if it never was.
bool RestoreToolBar();
void StoreToolBar(bool shown);

}  // namespace kirto
