#pragma once

#include <mutex>

#include "kit/translator_roster.h"
#include "ui/file_panels/open_file_panel.h"

class QGridLayout;
class QLineEdit;

// The panel in which an image is chosen to be cut into frames, with fields for how it is cut.
class InsertTiledFilePanel : public kirto::OpenFilePanel {
  public:
    // The roster outlives the panel.
    InsertTiledFilePanel(BMessenger target, const BTranslatorRoster& roster,
                         QPointer<QWidget> parent);

    std::string RowsText() const override;
    std::string ColumnsText() const override;
    bool ColumnByColumn() const override;

  protected:
    void Prepare(kirto::FileDialog& dialog) override;
    BMessage CommandFor(const QStringList& files) const override;

  private:
    // What says the same in another way, or more.
    void AddTileFields(QGridLayout& layout, QWidget* controls);
    // A field for a number of digits only, whose text is kept in text.
    QLineEdit* MakeNumberField(const char* name, std::string* text, QWidget* parent);

    mutable std::mutex mutex_;
    std::string rows_ = "3";  // guarded by mutex_, like the others
    std::string columns_ = "3";
    bool column_by_column_ = false;
    // Fields of the command, of which "0" is none.
    std::string tile_width_ = "0";
    std::string tile_height_ = "0";
    std::string margin_ = "0";
    std::string spacing_ = "0";
    bool skip_empty_ = false;
};
