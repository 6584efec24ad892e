#include "ui/file_panels/filter_proxy.h"

#include <QFile>
#include <QFileSystemModel>

#include "desktop/qt/mime_types.h"

namespace kirto {

FilterProxy::FilterProxy(std::unique_ptr<BRefFilter> filter) : filter_(std::move(filter)) {}

void FilterProxy::ForgetTypes() {
    types_.clear();
    invalidateFilter();
}

void FilterProxy::sort(int column, Qt::SortOrder order) {
    sourceModel()->sort(column, order);
}

bool FilterProxy::filterAcceptsRow(int row, const QModelIndex& parent) const {
    const auto* files = static_cast<const QFileSystemModel*>(sourceModel());
    const QFileInfo entry = files->fileInfo(files->index(row, 0, parent));
    const entry_ref ref(QFile::encodeName(entry.filePath()).toStdString());
    return filter_->Filter(ref, [&] { return TypeOf(entry); });
}

std::string FilterProxy::TypeOf(const QFileInfo& entry) const {
    if (entry.isSymLink()) return std::string(kSymlinkType);
    if (entry.isRoot()) return std::string(kVolumeType);
    if (entry.isDir()) return std::string(kDirectoryType);
    const QString path = entry.filePath();
    auto found = types_.find(path);
    if (found == types_.end()) {
        found = types_.insert(path, MimeTypeOf(QFile::encodeName(path).toStdString()));
    }
    return found.value();
}

}  // namespace kirto
