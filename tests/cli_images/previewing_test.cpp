// The preview's temporary file.
#include <filesystem>

#include "cli_images/image_home.h"

namespace kirto::test {

namespace fs = std::filesystem;

namespace {

struct PreviewHome : ImageHome {
    PreviewHome() {
        Write("three.gif", ThreeFrameGif());
        UseBrowser("cp \"$1\" seen.gif; stat -c %a \"$1\" > mode");
    }
    void UseBrowser(const std::string& script) {
        const std::string text = "#!/bin/sh\n" + script + "\n";
        Write("browser", {text.begin(), text.end()});
        fs::permissions(File("browser"), fs::perms::owner_all);
        SetEnvironment("BROWSER", File("browser"));
    }
};

}  // namespace

TEST(KirtoCliImages, ShowsTheBrowserWhatItWouldSaveAndLeavesNothing) {
    const PreviewHome home;

    home.Succeed({"--open", "three.gif", "--preview", "--save", "saved.gif"});

    EXPECT_EQ(ReadBytes(home.File("seen.gif")), ReadBytes(home.File("saved.gif")));
    EXPECT_EQ(ReadBytes(home.File("mode")), (std::vector<uint8>{'6', '0', '0', '\n'}));
    EXPECT_FALSE(fs::exists(home.HomeFile("kirtotemp.gif")));
}

TEST(KirtoCliImages, FollowsNoLinkWhereThePreviewGoes) {
    const PreviewHome home;
    home.Write("precious", {1, 2, 3});
    fs::create_symlink(home.File("precious"), home.HomeFile("kirtotemp.gif"));

    home.Succeed({"--open", "three.gif", "--preview"});

    EXPECT_EQ(ReadBytes(home.File("precious")), (std::vector<uint8>{1, 2, 3}));
    EXPECT_EQ(ReadBytes(home.File("seen.gif"))[0], 'G');
    EXPECT_FALSE(fs::is_symlink(home.HomeFile("kirtotemp.gif")));
}

TEST(KirtoCliImages, PutsThePreviewWhereTheSettingsSay) {
    PreviewHome home;
    home.UseBrowser("echo \"$1\" > path");

    home.Succeed(
        {"--set", "misc_tempfilelocation=" + home.File(""), "--open", "three.gif", "--preview"});

    const std::vector<uint8> path = ReadBytes(home.File("path"));
    EXPECT_EQ(std::string(path.begin(), path.end()), home.File("kirtotemp.gif") + "\n");
    EXPECT_EQ(home.Files(), (Arguments{"browser", "path", "three.gif"}));
}

}  // namespace kirto::test
