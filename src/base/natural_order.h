// Names of files in the order in which people number them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kirto {

// Whether the name a comes before b: numbers in them count as numbers, so that "frame2" comes
// before "frame10"; ASCII letters without regard to case. Names that are equal in this way come in
// the order of their bytes. A strict weak order.
bool ComesBefore(std::string_view a, std::string_view b);

// The files in that order, by their whole paths; in the place of a folder stand the files in it
// that are not hidden. One path that is no folder stays as it is.
std::vector<std::string> InNaturalOrder(const std::vector<std::string>& paths);

}  // namespace kirto
