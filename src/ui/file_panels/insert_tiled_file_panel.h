#pragma once

#include <mutex>

#include "kit/translator_roster.h"
#include "ui/file_panels/open_file_panel.h"
#include "ui/file_panels/sheet_view.h"

class QGridLayout;
class QLineEdit;

// The panel in which an image is chosen to be cut into frames, with fields for how it is cut and a
// picture of that.
class InsertTiledFilePanel : public kirto::OpenFilePanel {
  public:
    // The roster outlives the panel, and the image that it is still reading then.
    InsertTiledFilePanel(BMessenger target, BTranslatorRoster& roster, QPointer<QWidget> parent);

    std::string RowsText() const override;
    std::string ColumnsText() const override;
    bool ColumnByColumn() const override;

  protected:
    void Prepare(kirto::FileDialog& dialog) override;
    BMessage CommandFor(const QStringList& files) const override;
    void Closed(bool chosen) override;

  private:
    // How the fields say that an image is cut.
    kirto::TileGrid Grid() const;
    void Preview();
    // What says the same in another way, or more.
    void AddTileFields(QGridLayout& layout, QWidget* controls);
    // A field for a number of digits only, whose text is kept in text.
    QLineEdit* MakeNumberField(const char* name, std::string* text, QWidget* parent);

    // A size that was given for one side holds for the other, until that is given.
    void KeepSquare(QLineEdit* width, QLineEdit* height);

    BTranslatorRoster& roster_;
    QPointer<kirto::SheetView> view_;  // the dialog's; the GUI thread's, like the next
    std::string shown_path_;
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
