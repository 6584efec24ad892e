#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "base/pixel_budget.h"
#include "base/work.h"
#include "kit/bitmap.h"
#include "picture/picture.h"
#include "picture/picture_builder.h"

namespace kirto {

// Where the pictures of a FLI or FLC file are drawn, one over the other. It keeps palette indices
// as long as all of them have their meaning from one table, and pixels from then on. Used by one
// thread.
class FliCanvas {
  public:
    // The budget counts the canvas and the pictures.
    FliCanvas(int32 width, int32 height, std::shared_ptr<PixelBudget> budget);

    // False when memory was short; nothing is drawn then.
    bool Ready() const { return ready_; }
    int32 Width() const { return width_; }
    int64 PixelCount() const { return int64{width_} * height_; }

    // Makes all pixels opaque black. Takes no longer for large canvases than for small ones, but
    // for what is drawn afterwards.
    void Blacken();
    // Takes as many pixels of the picture as fit, without regard to its rows; it has rows in the
    // order blue, green, red, alpha. Nothing to do for the picture that was made last. False when
    // the work was stopped or memory is short.
    bool Take(const std::shared_ptr<const Picture>& picture, const Work& work);
    // What indices mean from now on.
    void SetTable(const PixelTable& table);
    // The same for all indices that are drawn, too, as on a screen with a palette. Not after a
    // picture was taken or after SetTable().
    void Recolor(const PixelTable& table);

    // Draw at a position, in pixels from the first row's start: each index once, or two in turn,
    // count of them. All of it lies on the canvas.
    void Put(int64 position, std::span<const uint8> indices);
    void RepeatPair(int64 position, uint8 first, uint8 second, int64 count);
    // Makes all pixels those of index 0. Takes no longer either.
    void Clear();

    // What is on the canvas; it shares what has not changed with the picture that was made last,
    // and repeats that one where nothing has. Null when memory is short or the work was stopped.
    std::shared_ptr<const Picture> MakePicture(const Work& work);

  private:
    // Rows that a strip is made of.
    struct Band {
        bool changed = true;  // since the last picture was made
        // All of it is this index or, where there are pixels, this pixel, whatever its memory says.
        std::optional<uint32> solid = 0;
        // Its indices, as the strip of the last picture has them; null for one color.
        std::shared_ptr<const PixelStorage> stored;
    };

    bool TurnIntoPixels();
    void FillAll(uint32 value);
    void Prepare(int64 position, int64 count);
    void FillMemory(size_t number, uint32 value);
    int32 FirstRow(size_t number) const { return static_cast<int32>(number) * band_rows_; }
    int32 RowsOf(size_t number) const { return std::min(band_rows_, height_ - FirstRow(number)); }
    bool HasChanged() const;
    bool AddBand(size_t number, PictureBuilder& builder);
    bool AddRows(size_t number, PictureBuilder& builder);
    std::shared_ptr<const Strip> StripOf(size_t number);
    std::shared_ptr<const Strip> SolidStrip(uint32 pixel, int32 rows);

    const int32 width_;
    const int32 height_;
    const int32 band_rows_;
    const std::shared_ptr<PixelBudget> budget_;
    std::shared_ptr<PixelStorage> indices_;  // one a pixel; null once there are pixels
    std::unique_ptr<BBitmap> pixels_;
    SharedPixelTable table_;
    bool ready_ = false;
    bool drawn_ = false;      // something is on it
    bool recolored_ = false;  // since the last picture was made
    std::vector<Band> bands_;
    // The pixels of the bands that were drawn on last, since the last picture was made.
    int64 prepared_start_ = 0;
    int64 prepared_end_ = 0;
    std::shared_ptr<const Picture> last_;
    std::shared_ptr<const Strip> last_solid_;  // that was made
};

}  // namespace kirto
