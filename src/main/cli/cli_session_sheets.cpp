// The operations on sheets: one image with many frames.
#include <vector>

#include "base/number.h"
#include "base/text.h"
#include "document/command_codes.h"
#include "main/cli/cli_session.h"
#include "main/cli/picture_values.h"

namespace kirto {

namespace {

constexpr int32 kMostPixels = 65535;

// Takes the text after the last comma off the value; empty without a comma.
std::string TakeLastItem(std::string* value) {
    const size_t comma = value->rfind(',');
    if (comma == std::string::npos) return {};
    std::string item = value->substr(comma + 1);
    value->resize(comma);
    return item;
}

// "name=N" with that name and a number from 0 on.
bool TakeNumber(const std::string& item, const std::string& name, BMessage* message) {
    int32 number = 0;
    if (!item.starts_with(name + '=') || !ParseNumber(item.substr(name.size() + 1), &number))
        return false;
    if (number < 0 || number > kMostPixels) return false;
    message->AddInt32(name, number);
    return true;
}

// One of the items behind the rows and columns. False for any other text.
bool TakeTileItem(const std::string& item, TileChoice* tiles, BMessage* message) {
    if (item == "by-column") {
        tiles->column_by_column = true;
        return true;
    }
    if (item == "skip-empty") return message->AddBool("skip_empty", true) == B_OK;
    if (item.starts_with("tile=")) {
        const auto size = ParseSize(item.substr(5));
        if (!size) return false;
        message->AddInt32("tile_width", size->width);
        message->AddInt32("tile_height", size->height);
        return true;
    }
    return TakeNumber(item, "margin", message) || TakeNumber(item, "spacing", message);
}

bool TakeSheetItem(const std::string& item, BMessage* message) {
    if (item == "pot") return message->AddBool("power_of_two", true) == B_OK;
    return TakeNumber(item, "columns", message) || TakeNumber(item, "padding", message);
}

// Takes the items off the value's end, as long as they are such.
template <typename Take>
void TakeItems(std::string* value, const Take& take) {
    for (;;) {
        std::string rest = *value;
        const std::string item = TakeLastItem(&rest);
        if (rest == *value || !take(item)) return;
        *value = rest;
    }
}

}  // namespace

CliSession::Outcome CliSession::InsertTiled(const std::string& value) {
    std::string path = value;
    TileChoice tiles;
    BMessage message(kInsertTiledFile);
    TakeItems(&path, [&](const std::string& item) { return TakeTileItem(item, &tiles, &message); });
    if (!message.HasField("tile_width") && !path.ends_with(".json")) {
        tiles.columns = TakeLastItem(&path);
        tiles.rows = TakeLastItem(&path);
        int32 number = 0;
        if (!ParseNumber(tiles.rows, &number) || !ParseNumber(tiles.columns, &number)) {
            return Refuse("--insert-tiled: \"" + value +
                          "\": expected FILE,ROWS,COLUMNS[,by-column].");
        }
    }
    desktop_.SetSubject(path);
    desktop_.SetTiles(tiles);
    message.AddRef("refs", AbsoluteRef(path));
    return Post(message);
}

CliSession::Outcome CliSession::SaveSheet(const std::string& value) {
    std::string path = value;
    BMessage message(kSaveSheet);
    TakeItems(&path, [&](const std::string& item) { return TakeSheetItem(item, &message); });
    const size_t dot = path.rfind('.');
    const translator_id translator = dot == std::string::npos ? 0 : WriterNamed(path.substr(dot));
    if (translator == 0) {
        return Refuse("--save-sheet: \"" + value +
                      "\": expected FILE.png[,columns=N][,padding=N][,pot].");
    }
    desktop_.SetSubject(path);
    const entry_ref ref = AbsoluteRef(path);
    message.AddInt64("translator_id", translator);
    message.AddRef("directory", entry_ref(ref.Directory()));
    message.AddString("name", ref.Leaf());
    return Post(message);
}

}  // namespace kirto
