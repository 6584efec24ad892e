#pragma once

#include <filesystem>

namespace kirto::test {

// The root of the source tree that the tests were built from.
std::filesystem::path SourceFolder();

}  // namespace kirto::test
