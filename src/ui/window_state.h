// What the program remembers of its windows besides the settings: how the user divided them.
#pragma once

class QSplitter;

namespace kirto {

// Divides the splitter as it was when it was stored last; as it is without that. GUI thread.
void RestoreSplitter(QSplitter& splitter);
void StoreSplitter(const QSplitter& splitter);

}  // namespace kirto
