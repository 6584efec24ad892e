// What an animation is made of, for people and for programs.
#pragma once

#include <string>

#include "document/document_state.h"

namespace kirto {

// A few lines of text, ending in a newline; names as they are, or for a terminal. in_seconds: the
// unit of pauses, else hundredths.
std::string DescribeDocument(const DocumentState& document, bool in_seconds, bool for_terminal);

// One JSON object with the document's own field names; every frame with the MD5 of its bitmap's
// bytes in memory order. Names that are no UTF-8 have their odd bytes replaced. For a terminal, all
// but ASCII is escaped.
std::string DescribeDocumentAsJson(const DocumentState& document, bool for_terminal);

}  // namespace kirto
