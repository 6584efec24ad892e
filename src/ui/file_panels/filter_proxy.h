#pragma once

#include <QHash>
#include <QSortFilterProxyModel>
#include <memory>

#include "ui/file_panels/ref_filter.h"

class QFileInfo;

namespace kirto {

// Shows of a QFileSystemModel what a filter offers, in the model's own order. GUI thread.
class FilterProxy : public QSortFilterProxyModel {
  public:
    explicit FilterProxy(std::unique_ptr<BRefFilter> filter);

    // Looks the types up again, since files may have changed.
    void ForgetTypes();
    // Sorts the source model, which knows folders, sizes and dates.
    void sort(int column, Qt::SortOrder order) override;

  protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

  private:
    std::string TypeOf(const QFileInfo& entry) const;

    std::unique_ptr<BRefFilter> filter_;
    // By path. A folder's entries are asked about many times while it is read.
    mutable QHash<QString, std::string> types_;
};

}  // namespace kirto
