// What menus and their items are called in English, whatever language they are shown in: what
// settings and other parts of the windows know them by.
#pragma once

#include <QAction>

namespace kirto {

// label: English, with or without "&".
void SetEnglishName(QAction& action, const char* label);
// Without "&"; the text of an item that has no such name.
QString EnglishNameOf(const QAction& action);

}  // namespace kirto
