#include "main/cli/error_lines.h"

#include <nlohmann/json.hpp>

namespace kirto {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kProgram = "kirto-cli";

std::string Line(const Json& json) {
    return json.dump(-1, ' ', true, Json::error_handler_t::replace) + "\n";
}

}  // namespace

std::string ErrorLine(const std::string& file, const std::string& message) {
    Json json = {{"program", kProgram}};
    if (!file.empty()) json["file"] = file;
    json["message"] = message;
    return Line(json);
}

std::string StatusLine(int status, bool temporary) {
    return Line({{"program", kProgram}, {"status", status}, {"temporary", temporary}});
}

}  // namespace kirto
