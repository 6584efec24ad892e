// What an animation is made of, for people and for programs.
#pragma once

#include <string>

#include "document/animation_document.h"

namespace kirto {

// A few lines of text, ending in a newline; names as they are, or for a terminal. The caller is
// inside the document's lock or on its editing thread.
std::string DescribeDocument(const AnimationDocument& document, bool for_terminal);

// One JSON object with the document's own field names; every frame with the MD5 of its bitmap's
// bytes in memory order. Names that are no UTF-8 have their odd bytes replaced. For a terminal, all
// but ASCII is escaped.
std::string DescribeDocumentAsJson(const AnimationDocument& document, bool for_terminal);

}  // namespace kirto
