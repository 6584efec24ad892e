// The programs as they are installed, and after the installed tree was moved.
#include <algorithm>
#include <filesystem>

#include "cli/cli_run.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

// A home with what an installation into /usr made of the build, below a folder that stands for the
// root.
struct InstalledTree : CliHome {
    explicit InstalledTree(const Arguments& more = {}) {
        SetEnvironment("DESTDIR", File("root"));
        SetEnvironment("QT_QPA_PLATFORM", "offscreen");
        Arguments arguments = {"--install", KIRTO_BUILD_FOLDER, "--prefix", "/usr"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        const RunResult result = RunProgram(KIRTO_CMAKE, arguments);
        EXPECT_EQ(result.status, 0) << result.err;
        Write("three.gif", ThreeFrameGif());
    }

    bool Has(const std::string& name) const { return fs::exists(File("root/usr/" + name)); }
    bool HasAny(const std::string& folder, const std::string& name_part) const {
        const fs::recursive_directory_iterator files(File("root/usr/" + folder));
        return std::any_of(begin(files), end(files), [&name_part](const fs::path& path) {
            return path.string().find(name_part) != std::string::npos;
        });
    }
};

}  // namespace

TEST(Installation, ProgramsFindTheirFilesWhereverTheTreeIsMoved) {
    const InstalledTree tree;
    fs::rename(tree.File("root/usr"), tree.File("moved"));

    const RunResult image =
        tree.RunProgram(tree.File("moved/bin/kirto-cli"),
                        {"--quiet", "--open", "three.gif", "--save-sequence", "image.png"});
    const RunResult still =
        tree.RunProgram(tree.File("moved/bin/kirto-cli"),
                        {"--quiet", "--insert", "image0000.png", "--save", "still.gif"});
    const RunResult window =
        tree.RunProgram(tree.File("moved/bin/kirto"), {"--screenshot", "window.png", "three.gif"});

    EXPECT_EQ(image.status, 0) << image.err;
    EXPECT_TRUE(fs::exists(tree.File("image0002.png")));
    EXPECT_EQ(still.status, 0) << still.err;
    EXPECT_EQ(window.status, 0) << window.err;
    EXPECT_TRUE(fs::exists(tree.File("window.png")));
}

TEST(Installation, TheImageProgramIsNotTakenFromTheWorkingFolder) {
    const InstalledTree tree;
    fs::remove_all(tree.File("root/usr/libexec"));
    fs::copy_file("/bin/true", tree.File("kirto-cli-images"));

    const RunResult result =
        tree.RunProgram(tree.File("root/usr/bin/kirto-cli"), {"--list-formats"});

    EXPECT_EQ(result.status, 1);
    EXPECT_NE(result.err.find("kirto-cli-images can't be started"), std::string::npos)
        << result.err;
}

TEST(Installation, TheCommandLineIsAComponentOfItsOwn) {
    const InstalledTree tree({"--component", "kirto-cli"});

    EXPECT_TRUE(tree.Has("bin/kirto-cli"));
    EXPECT_TRUE(tree.Has("libexec/kirto/kirto-cli-images"));
    EXPECT_TRUE(tree.Has("libexec/kirto/kirto-decode"));
    EXPECT_FALSE(tree.Has("bin/kirto"));
    EXPECT_FALSE(tree.Has("share/kirto"));
}

TEST(Installation, TheEditorIsAComponentOfItsOwn) {
    const InstalledTree tree({"--component", "kirto"});

    EXPECT_TRUE(tree.Has("bin/kirto"));
    EXPECT_TRUE(tree.Has("share/kirto/kirto.rsrc"));
    EXPECT_FALSE(tree.HasAny("bin", "kirto-cli"));
}

TEST(Installation, TheGuideComesWithThePicturesThatItShows) {
    const InstalledTree tree({"--component", "kirto"});

    EXPECT_TRUE(tree.Has("share/kirto/guide/README.md"));
    EXPECT_TRUE(tree.Has("share/kirto/guide/../pictures/thumbnails.png"));
}

TEST(Installation, TheThumbnailersLineWritesThePictureThatItIsAskedFor) {
    const InstalledTree tree;
    tree.Write("two.flc", TwoFrameFli());
    const RunResult result = tree.RunProgram(
        "/bin/sh", {"-c",
                    "PATH=$PWD/root/usr/bin:$PATH; "
                    "$(sed -n 's/^Exec=//p' root/usr/share/thumbnailers/kirto.thumbnailer | "
                    "sed 's/%i/two.flc/; s/%o/picture/')"});

    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_GT(ReadBytes(tree.File("picture")).size(), 0u);
}

TEST(Installation, ADesktopFindsTheEditorByOneName) {
    const InstalledTree tree({"--component", "kirto"});

    for (const char* name :
         {"applications/org.kirto.Kirto.desktop", "metainfo/org.kirto.Kirto.metainfo.xml",
          "mime/packages/org.kirto.Kirto.xml", "icons/hicolor/scalable/apps/org.kirto.Kirto.svg",
          "icons/hicolor/48x48/apps/org.kirto.Kirto.png"}) {
        EXPECT_TRUE(tree.Has("share/" + std::string(name))) << name;
    }
}

}  // namespace kirto::test
