#pragma once

#include <QLabel>
#include <QWidget>

#include "ui/controls/thumbnail_cache.h"
#include "ui/file_panels/sheet_reader.h"

namespace kirto {

// Shows the image that is to be cut into frames: with lines around the tiles, dark where there is
// none, hatched where a tile is skipped, and a sentence about it below. Empty without a file. GUI
// thread, which never waits for the image.
class SheetView : public QWidget {
  public:
    // The roster outlives the view, and whatever it is still reading then.
    SheetView(BTranslatorRoster& roster, QWidget* parent);

    // The file and the grid that cuts it; an empty path for none.
    void ShowSheet(const std::string& path, const TileGrid& grid);
    // Where that part of the sheet is in the widget.
    QRectF PlaceOf(const TilePlace& part) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void Receive(const ReadSheet& sheet);
    double Scale() const;
    // Everything but the tiles, on the pixels of the target.
    QImage Shade(const QRectF& target) const;

    std::string path_;
    ReadSheet sheet_;
    QLabel* text_;
    ThumbnailCache cache_;
    SheetReader reader_;
};

}  // namespace kirto
