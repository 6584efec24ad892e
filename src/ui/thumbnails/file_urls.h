// Files as other programs name them. Paths are bytes, whatever characters they make.
#pragma once

#include <QByteArray>
#include <QMimeData>
#include <QUrl>
#include <optional>
#include <string>

#include "kit/message.h"

namespace kirto {

// The path that a file URL of this machine names; nothing for other URLs.
std::optional<std::string> LocalPathOf(const QUrl& url);

// The file URL of an absolute path.
QByteArray FileUrlOf(const std::string& path);

// Adds the local files among the data to the message, as refs "refs"; false when there are none.
bool AddRefs(const QMimeData& data, BMessage* message);

}  // namespace kirto
