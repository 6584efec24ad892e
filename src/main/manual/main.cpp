// kirto-manual: writes the manual pages of the programs and the completions for shells into a
// folder, from the tables that their --help is made of.
#include <cstdio>
#include <fstream>
#include <string>

#include "main/manual/completions.h"
#include "main/manual/manual_page.h"

namespace {

constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;

bool WriteText(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    if (file) return true;
    std::fprintf(stderr, "kirto-manual: %s can't be written.\n", path.c_str());
    return false;
}

bool WriteTextsOf(const kirto::ProgramText& program, const std::string& folder) {
    const std::string stem = folder + "/" + program.name;
    return WriteText(stem + ".1", kirto::ManualPage(program)) &&
           WriteText(stem + ".bash", kirto::BashCompletion(program)) &&
           WriteText(stem + ".zsh", kirto::ZshCompletion(program)) &&
           WriteText(stem + ".fish", kirto::FishCompletion(program));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: kirto-manual FOLDER\n", stderr);
        return kExitUsage;
    }
    const bool written = WriteTextsOf(kirto::EditorProgramText(), argv[1]) &&
                         WriteTextsOf(kirto::CliProgramText(), argv[1]);
    return written ? 0 : kExitFailed;
}
