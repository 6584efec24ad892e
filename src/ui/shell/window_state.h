// What the program remembers of its windows besides the settings: how the user divided them.
#pragma once

class QSplitter;

namespace kirto {

// Restores the splitter as it was last stored, if it was. GUI thread.
void RestoreSplitter(QSplitter& splitter);
void StoreSplitter(const QSplitter& splitter);

// The same of the splitter between the player and the frames. Returns whether the player was shown
// when it was stored; false if it was never.
bool RestorePlayer(QSplitter& splitter);
void StorePlayer(const QSplitter& splitter, bool shown);

}  // namespace kirto
