#pragma once

#include <QString>

#include "base/types.h"

namespace kirto {

// A number of bytes for people: "830 bytes", "1.23 MB". digits: that count, 1 to 3 of them. bytes:
// 0 or more; in decimal units, as files are told of elsewhere.
QString SizeText(int64 bytes, int digits);

}  // namespace kirto
