#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <toml++/toml.h>
#include <vector>

#include "base/types.h"
#include "resources/resources_writer.h"

namespace kirto {

// Makes the program's resources of their readable sources: a manifest in TOML, and the icons and
// window layouts that it names. Construction does all the work.
class ResourceCompiler {
  public:
    explicit ResourceCompiler(const std::string& manifest);

    // What is wrong with the sources; empty when nothing is.
    const std::string& Error() const { return error_; }
    // The container file's bytes; empty after an error.
    const std::vector<uint8>& Container() const { return container_; }

  private:
    bool Compile();
    // In the order of the resources in the container.
    bool AddWindows();
    bool AddIcon(std::string_view key, type_code type, std::string_view name, int32 side);
    bool AddFileTypes();
    bool AddMimeString(std::string_view key, int32 id, std::string_view name);
    bool AddVersion();
    bool AddFlags();
    bool Add(type_code type, int32 id, std::string_view name, std::vector<uint8> bytes);

    // Values of the manifest by their path ("icons.large"); false, with an error, without one.
    bool FindText(std::string_view key, std::string* text);
    bool FindNumber(std::string_view key, uint32* number);
    bool ReadFile(const std::string& path, std::string* text);
    std::string PathOf(const std::string& name) const { return (folder_ / name).string(); }
    // Keeps the error; false.
    bool Fail(const std::string& error);

    const std::string manifest_;
    const std::filesystem::path folder_;
    toml::table values_;
    ResourcesWriter writer_;
    std::string error_;
    std::vector<uint8> container_;
};

}  // namespace kirto
