// Animated WebP and PNG files on the command line.
#include "cli_images/image_home.h"
#include "support/animated_image_file.h"

namespace kirto::test {

namespace {

// Two frames of 2 x 1, for 100 and 40 ms.
struct AnimatedImages : ImageHome {
    AnimatedImages() {
        AnimatedImageFile file;
        file.width = 2;
        file.plays = 4;
        file.frames = {{0, 0, 2, 1, {0xFFFF0000, 0xFF00FF00}}, {0, 0, 1, 1, {0xFF0000FF}}};
        file.frames[1].milliseconds = 40;
        Write("walk.png", file.Apng());
        Write("walk.webp", file.Webp());
    }
};

}  // namespace

TEST(KirtoCliAnimatedImages, AreOpenedAsAnimations) {
    const AnimatedImages home;
    for (const std::string name : {"walk.png", "walk.webp"}) {
        const Json info = home.Info({"--open", name});
        EXPECT_EQ(NamesIn(info), (Arguments{"frame0000", "frame0001"})) << name;
        EXPECT_EQ(info["frames"][1]["pause_length"], 4.0) << name;
        EXPECT_EQ(info["loop_count"], 3) << name;
    }
}

TEST(KirtoCliAnimatedImages, AreInsertedIntoOthers) {
    const AnimatedImages home;
    const Json info = home.Info({"--open", "walk.png", "--insert-animation", "walk.webp@1"});
    EXPECT_EQ(info["frames"].size(), 4u);
}

TEST(KirtoCliAnimatedImages, AreReadFromStandardInput) {
    const AnimatedImages home;
    const std::string cli = KIRTO_CLI;
    for (const std::string& line :
         {cli + " --open - --info < walk.webp", "cat walk.png | " + cli + " --open - --info"}) {
        const RunResult result = home.Shell(line);
        EXPECT_EQ(result.status, 0) << line;
        EXPECT_NE(result.out.find("2 frame(s)"), std::string::npos) << line;
    }
}

TEST(KirtoCliAnimatedImages, AreNotReplacedByASave) {
    const AnimatedImages home;
    EXPECT_EQ(home.Info({"--open", "walk.webp"})["file_name"], "walk.gif");

    home.Write("walk.gif", {1});
    EXPECT_EQ(home.Info({"--open", "walk.webp"})["file_name"], "untitled");
}

}  // namespace kirto::test
