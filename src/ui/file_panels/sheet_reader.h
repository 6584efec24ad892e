#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "app/sheet_preview.h"

namespace kirto {

// A sheet, ready to be painted, and how it is cut.
struct ReadSheet {
    std::string path;
    QImage image;  // null where there is none; no larger than a screen
    QSize size;    // of the sheet itself, pixels
    SheetCutting cutting;
};

// Reads sheets for a preview on a thread of its own, the latest that was asked for; what is asked
// for in the meantime is left out. The receiver is called on the GUI thread, where this is made and
// destroyed.
class SheetReader {
  public:
    using Receiver = std::function<void(const ReadSheet& sheet)>;

    // The roster outlives the reader, and whatever readers abandon.
    SheetReader(BTranslatorRoster& roster, Receiver receive);
    // Waits for no file that is being read.
    ~SheetReader();
    SheetReader(const SheetReader&) = delete;
    SheetReader& operator=(const SheetReader&) = delete;

    // Never waits. An empty path gives nothing and lets go what was read.
    void Ask(const std::string& path, const TileGrid& grid);

  private:
    struct Wish {
        std::string path;
        TileGrid grid;
    };

    // What has been read last.
    struct Kept {
        std::string path;
        std::optional<PreviewedSheet> sheet;
        std::string text;
        QImage image;
    };

    void Run();
    std::optional<Wish> NextWish();
    void Fulfil(const Wish& wish);
    // False when something else was asked for before it was read.
    bool Read(const std::string& path);
    bool GivenUp(const std::string& path);
    void Deliver(ReadSheet sheet);

    BTranslatorRoster& roster_;
    const Receiver receive_;
    QObject gui_;  // where the receiver is called
    std::mutex mutex_;
    std::condition_variable wished_;
    std::optional<Wish> wish_;  // guarded by mutex_, like the next
    bool over_ = false;
    Kept kept_;  // the thread's
    std::thread thread_;
};

}  // namespace kirto
