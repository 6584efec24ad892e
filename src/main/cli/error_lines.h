// What went wrong, for programs: a line each, one JSON object in it.
#pragma once

#include <string>

namespace kirto {

// {"program": "kirto-cli", "file": ..., "message": ...}, without "file" where that is empty. Bytes
// that are no UTF-8 are replaced. Ends in a line break.
std::string ErrorLine(const std::string& file, const std::string& message);

// The last line of a run that failed: {"program": "kirto-cli", "status": ..., "temporary": ...}.
// temporary: whether another try may succeed.
std::string StatusLine(int status, bool temporary);

}  // namespace kirto
