#pragma once

#include <string>

#include "platform/types.h"

namespace kirto {

enum class FilePanelKind { kOpen, kInsert, kInsertTiled, kSave };

// A file dialog of the application. It posts its own message to the application when files are
// chosen, and B_CANCEL with itself as pointer "source" whenever it closes. Made by the Desktop,
// owned and called by the application.
class FilePanel {
  public:
    virtual ~FilePanel() = default;

    // The save panel's chosen output: a translator's id, or 0 for animated GIF.
    virtual uint32 OutputFormat() const { return 0; }
    // The insert-tiled panel's fields as they stand, and its order.
    virtual std::string RowsText() const { return {}; }
    virtual std::string ColumnsText() const { return {}; }
    virtual bool ColumnByColumn() const { return false; }
};

}  // namespace kirto
