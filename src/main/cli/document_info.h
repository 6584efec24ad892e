// What an animation is made of, for people and for programs.
#pragma once

#include <string>

#include "document/document_state.h"

namespace kirto {

// A few lines of text, ending in a newline. in_seconds: the unit of pauses, else hundredths.
std::string DescribeDocument(const DocumentState& document, bool in_seconds);

// One JSON object with the document's own field names; every frame with the MD5 of its bitmap's
// bytes in memory order. Names that are no UTF-8 have their odd bytes replaced.
std::string DescribeDocumentAsJson(const DocumentState& document);

}  // namespace kirto
