// Every command line of kirto-cli that the documents show, run as a reader would run it.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>

#include "cli_images/image_home.h"
#include "support/source_folder.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

// The documents that show command lines to users.
std::vector<fs::path> Documents() {
    std::vector<fs::path> documents = {SourceFolder() / "README.md"};
    for (const auto& entry : fs::recursive_directory_iterator(SourceFolder() / "docs"))
        if (entry.path().extension() == ".md") documents.push_back(entry.path());
    return documents;
}

std::vector<std::string> LinesOf(const fs::path& path) {
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

// Those of the blocks of code that call the program, with what a backslash continues.
std::vector<std::string> CommandLines(const fs::path& document) {
    std::vector<std::string> commands;
    bool in_code = false;
    bool continues = false;
    for (const std::string& line : LinesOf(document)) {
        // Blocks of a list's items are indented.
        if (line.substr(std::min(line.find_first_not_of(' '), line.size())).starts_with("```"))
            in_code = !in_code;
        if (continues) {
            commands.back() += '\n' + line;
        } else if (in_code && line.find("kirto-cli ") != std::string::npos) {
            commands.push_back(line);
        } else {
            continue;
        }
        continues = line.ends_with('\\');
    }
    return commands;
}

// A working folder, in which lines are typed as in the shell that most people have.
struct Shell : ImageHome {
    Shell() {
        const fs::path programs = fs::path(KIRTO_CLI).parent_path();
        SetEnvironment("PATH", programs.string() + ":/usr/bin:/bin");
    }
    RunResult Type(const std::string& line) const {
        return RunProgram("/bin/bash", {"-o", "pipefail", "-c", line});
    }
};

// The files that the documents speak of. A line that reads another one fails until it is made here.
struct Samples : Shell {
    Samples() {
        for (const char* name : {"walk.gif", "jump.gif", "title.gif"})
            Make("kirto-sample " + std::string(name));
        Write("title.flc", TwoFrameFli());
        Write("damaged.gif", DamagedGif(2));
        Make("kirto-cli --open walk.gif --select 0-7 --save-sheet sheet.png,columns=4");
        Make(
            "kirto-cli --open walk.gif --resize 64x64 --select 0-7 "
            "--save-sheet tiles.png,columns=4,padding=2");
        MakeImage("photo.jpg", "");
        MakeImage("logo.png", "--resize 40x ");
        Make(
            "ffmpeg -v error -nostdin -f lavfi -i testsrc=s=640x480:r=5:d=8 -preset ultrafast "
            "clip.mp4");
        Make("for i in $(seq 30); do cp logo.png $i.png; done");
    }

  private:
    void Make(const std::string& line) const {
        const RunResult result = Type(line);
        EXPECT_EQ(result.status, 0) << line << '\n' << result.err;
    }
    // Of the first frame.
    void MakeImage(const fs::path& name, const std::string& edits) const {
        const std::string first = name.stem().string() + "0000" + name.extension().string();
        Make("kirto-cli --open walk.gif --select 1-23 --remove " + edits + "--save-sequence " +
             name.string() + " && mv " + first + ' ' + name.string());
    }
};

// Runs the line beside its files, and looks for what it is to write, where that has a name of its
// own and is no stream.
void Try(const std::string& line) {
    static const Samples samples;
    const Shell shell;
    const fs::file_time_type long_ago = fs::file_time_type::clock::now() - std::chrono::hours(1);
    for (const std::string& name : samples.Files()) {
        fs::copy_file(samples.File(name), shell.File(name));
        fs::last_write_time(shell.File(name), long_ago);
    }

    const RunResult result = shell.Type(line);

    EXPECT_EQ(result.status, 0) << line << '\n' << result.err;
    static const std::regex kSaved("--save(-sheet)? ([^- ,|{][^ ,|{]*)(?=[ ,|]|$)");
    for (std::sregex_iterator match(line.begin(), line.end(), kSaved), end; match != end; ++match) {
        const std::string path = shell.File((*match)[2]);
        EXPECT_TRUE(fs::exists(path) && fs::last_write_time(path) > long_ago) << line;
    }
}

}  // namespace

TEST(DocumentedLines, WorkAsTheyStand) {
    size_t lines = 0;
    for (const fs::path& document : Documents()) {
        for (const std::string& line : CommandLines(document)) {
            SCOPED_TRACE(document);
            Try(line);
            ++lines;
        }
    }
    EXPECT_GE(lines, 15u);
}

TEST(DocumentedLines, FailWhereTheyReadAFileThatNobodyMade) {
    const Shell shell;
    EXPECT_NE(shell.Type("kirto-cli --open unheard-of.gif --info").status, 0);
    EXPECT_NE(shell.Type("kirto-cli --open unheard-of.gif --info | cat").status, 0);
}

}  // namespace kirto::test
