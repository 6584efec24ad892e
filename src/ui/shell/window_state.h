// What the program remembers of its windows besides the settings: how the user divided them.
#pragma once

class QSplitter;

namespace kirto {

// Restores the splitter as it was last stored, if it was. GUI thread.
void RestoreSplitter(QSplitter& splitter);
void StoreSplitter(const QSplitter& splitter);

}  // namespace kirto
