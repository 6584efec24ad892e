#include "desktop/browser_variable.h"

#include <cstdlib>
#include <sstream>

namespace kirto {

namespace {

// No shell sees the text: words are separated by white space, and nothing else is special.
ProgramCall CallFor(const std::string& command, const std::string& file) {
    ProgramCall call;
    std::istringstream words(command);
    bool placed = false;
    for (std::string word; words >> word;) {
        const size_t place = word.find("%s");
        if (place != std::string::npos) {
            word.replace(place, 2, file);
            placed = true;
        }
        call.push_back(word);
    }
    if (!call.empty() && !placed) call.push_back(file);
    return call;
}

}  // namespace

std::vector<ProgramCall> BrowserVariableCalls(const std::string& file) {
    std::vector<ProgramCall> calls;
    const char* variable = std::getenv("BROWSER");
    std::istringstream commands(variable ? variable : "");
    for (std::string command; std::getline(commands, command, ':');) {
        ProgramCall call = CallFor(command, file);
        if (!call.empty()) calls.push_back(std::move(call));
    }
    return calls;
}

}  // namespace kirto
