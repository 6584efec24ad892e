// The list of recently used files that the programs of a desktop share.
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>
#include <string>

namespace kirto {

// $XDG_DATA_HOME/recently-used.xbel
std::string DesktopRecentListPath();

struct DesktopRecentFile {
    QString uri;   // encoded
    QString type;  // MIME
    QDateTime time;
};

// The list with the file in it as used once more by this program; everything else as it was, letter
// by letter. list: empty for a list that is not there yet. Nothing when it is none.
// Format: the Desktop Bookmark Specification of freedesktop.org, an XBEL document.
std::optional<QString> WithRecentFile(const QString& list, const DesktopRecentFile& file);

// Adds the file to the list; one that is damaged is left alone. Any thread.
void TellDesktopOfRecentFile(const std::string& path, const std::string& type);

}  // namespace kirto
