#pragma once

#include <string>

#include "base/types.h"

namespace kirto {

enum class FilePanelKind { kOpen, kInsert, kInsertTiled, kInsertAnimation, kSave };

// A file dialog of the application. It posts its own message to the application when files are
// chosen, and B_CANCEL with itself as pointer "source" whenever it closes. Made by the Desktop,
// owned by the application. It may be made, and its fields read, on any thread; it is shown and
// destroyed on the GUI thread.
class FilePanel {
  public:
    virtual ~FilePanel() = default;

    // The save panel's chosen output: a translator's id, or 0 for animated GIF. A cancelled choice
    // does not count.
    virtual uint32 OutputFormat() const { return 0; }
    // Makes that the output, whatever was chosen. Thread-safe.
    virtual void UseOutputFormat(uint32) {}
    // The insert-tiled panel's fields as they stand, and its order.
    virtual std::string RowsText() const { return {}; }
    virtual std::string ColumnsText() const { return {}; }
    virtual bool ColumnByColumn() const { return false; }

    virtual void SetTitle(const std::string&) {}
    // The folder that the panel shows next; does nothing if there is no such folder.
    virtual void SetDirectory(const std::string&) {}
    // The save panel's field for the file's name.
    virtual void SetSaveText(const std::string&) {}
    // A name for the user to take or to type over, with the extension of the chosen format in place
    // of that of another animation. Until the next SetSaveText.
    virtual void ProposeName(const std::string&) {}
    // Shows the panel, or brings it to the front. Returns at once.
    virtual void Show() {}
};

// The program's file panels, each made on first use and then kept. Thread-safe.
class FilePanelSource {
  public:
    virtual ~FilePanelSource() = default;
    virtual FilePanel* GetPanel(FilePanelKind kind) = 0;
};

}  // namespace kirto
