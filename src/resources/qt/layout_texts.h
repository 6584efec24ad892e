// The texts of the windows whose layouts lie in resources/, for lupdate, which doesn't read those.
// A test holds both together.
#pragma once

#include <span>

namespace kirto {

// Titles, labels, and the names of pages.
std::span<const char* const> LayoutTexts();

}  // namespace kirto
