#include "ui/thumbnails/file_urls.h"

#include <QSysInfo>
#include <vector>

#include "base/natural_order.h"

namespace kirto {

std::optional<std::string> LocalPathOf(const QUrl& url) {
    if (url.scheme() != "file") return std::nullopt;
    const QString host = url.host();
    const bool local = host.isEmpty() || host == "localhost" ||
                       host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    if (!local) return std::nullopt;
    const std::string path =
        QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
    if (path.empty() || path.find('\0') != std::string::npos) return std::nullopt;
    return path;
}

QByteArray FileUrlOf(const std::string& path) {
    return "file://" + QByteArray::fromStdString(path).toPercentEncoding("/");
}

bool AddRefs(const QMimeData& data, BMessage* message) {
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        std::optional<std::string> path = LocalPathOf(url);
        if (path) paths.push_back(std::move(*path));
    }
    bool added = false;
    for (const std::string& path : InNaturalOrder(paths))
        added = message->AddRef("refs", entry_ref(path)) == B_OK || added;
    return added;
}

}  // namespace kirto
