// Images and tiles that come in, and fades between them.
#include "cli_images/image_home.h"

namespace kirto::test {

namespace {

constexpr uint32 kRed = 0xFF0000;
constexpr uint32 kGreen = 0x00FF00;
constexpr uint32 kBlue = 0x0000FF;

struct ThreeImages : ImageHome {
    ThreeImages() {
        Write("red.ppm", Ppm(2, 1, {kRed, kRed}));
        Write("green.ppm", Ppm(2, 1, {kGreen, kGreen}));
        Write("blue.ppm", Ppm(2, 1, {kBlue, kBlue}));
    }
};

}  // namespace

TEST(KirtoCliImages, InsertsOneImageBehindTheOther) {
    const ThreeImages home;

    const Json info =
        home.Info({"--insert", "red.ppm", "--insert", "green.ppm", "--insert", "blue.ppm@1"});

    EXPECT_EQ(NamesIn(info), (Arguments{"red.ppm", "blue.ppm", "green.ppm"}));
    EXPECT_EQ(info["selected"], 1);
}

TEST(KirtoCliImages, AppendsImagesPastTheEnd) {
    const ThreeImages home;

    const Json info =
        home.Info({"--insert", "red.ppm", "--insert", "green.ppm", "--insert", "blue.ppm@99"});

    EXPECT_EQ(NamesIn(info).back(), "blue.ppm");
    EXPECT_EQ(info["selected"], 2);
}

TEST(KirtoCliImages, TellsAtSignsInNamesFromPositions) {
    const ThreeImages home;
    home.Write("a@b.ppm", Ppm(1, 1, {kRed}));
    home.Write("c@3", Ppm(1, 1, {kRed}));

    const Json info = home.Info(
        {"--insert", "a@b.ppm", "--insert", "c@3", "--insert", "a@b.ppm@0", "--insert", "c@3@0"});

    EXPECT_EQ(NamesIn(info), (Arguments{"c@3", "a@b.ppm", "a@b.ppm", "c@3"}));
}

TEST(KirtoCliImages, EndsAtAnImageThatCanNotBeRead) {
    const ThreeImages home;
    home.Write("broken.png", {'n', 'o', ' ', 'i', 'm', 'a', 'g', 'e'});

    home.Fail({"--insert", "red.ppm", "--insert", "broken.png", "--insert", "blue.ppm", "--save",
               "out.gif"},
              "broken.png: This file can't be inserted because this file type is unsupported: "
              "broken.png",
              1);

    EXPECT_EQ(home.Files(), (Arguments{"blue.ppm", "broken.png", "green.ppm", "red.ppm"}));
}

TEST(KirtoCliImages, CutsTilesInTheOrderItIsTold) {
    const ImageHome home;
    home.Write("grid.ppm", Ppm(5, 2, {1, 1, 2, 2, 9, 3, 3, 4, 4, 9}));

    const std::vector<Colors> rows = home.Frames({"--insert-tiled", "grid.ppm,2,2"});
    const std::vector<Colors> columns = home.Frames({"--insert-tiled", "grid.ppm,2,2,by-column"});

    EXPECT_EQ(rows, (std::vector<Colors>{{1, 1}, {2, 2}, {3, 3}, {4, 4}}));
    EXPECT_EQ(columns, (std::vector<Colors>{{1, 1}, {3, 3}, {2, 2}, {4, 4}}));
}

TEST(KirtoCliImages, InsertsTilesBehindTheCurrentFrame) {
    const ThreeImages home;

    const Json info = home.Info({"--insert", "red.ppm", "--insert", "blue.ppm", "--select", "0",
                                 "--insert-tiled", "green.ppm,1,2"});

    EXPECT_EQ(NamesIn(info), (Arguments{"red.ppm", "tiled0000", "tiled0001", "blue.ppm"}));
}

TEST(KirtoCliImages, RefusesGridsOfNothing) {
    const ThreeImages home;
    for (const std::string grid : {"0,1", "1,0", "-1,1", "2,1", "1,3"}) {
        home.Fail({"--insert-tiled", "red.ppm," + grid},
                  "red.ppm: This frame can't be inserted because the number of rows or columns is "
                  "illegal.",
                  1);
    }
}

TEST(KirtoCliImages, FadesToAndFromAColour) {
    const ThreeImages home;
    home.Write("white.ppm", Ppm(1, 1, {0xFFFFFF}));

    EXPECT_EQ(home.Frames({"--insert", "white.ppm", "--fade", "to-color:2:ff8000"}),
              (std::vector<Colors>{{0xFFFFFF}, {0xFFBF7F}, {0xFF8000}}));
    EXPECT_EQ(home.Frames({"--insert", "white.ppm", "--fade", "from-color:2"}),
              (std::vector<Colors>{{0x000000}, {0x7F7F7F}, {0xFFFFFF}}));
}

TEST(KirtoCliImages, FadesBetweenNeighbours) {
    const ImageHome home;
    home.Write("white.ppm", Ppm(1, 1, {0xFFFFFF}));
    home.Write("black.ppm", Ppm(1, 1, {0}));
    const Arguments both = {"--insert", "white.ppm", "--insert", "black.ppm"};
    Arguments to_next = both;
    to_next.insert(to_next.end(), {"--select", "0", "--fade", "to-next:1"});
    Arguments from_previous = both;
    from_previous.insert(from_previous.end(), {"--fade", "from-previous:1"});

    const std::vector<Colors> half_way = {{0xFFFFFF}, {0x7F7F7F}, {0}};
    EXPECT_EQ(home.Frames(to_next), half_way);
    EXPECT_EQ(home.Frames(from_previous), half_way);
}

TEST(KirtoCliImages, FadesOverOneToAHundredFrames) {
    const ThreeImages home;
    for (const char* fade : {"to-color:0", "from-color:101", "to-next:0", "from-previous:101"}) {
        home.Fail({"--insert", "red.ppm", "--fade", fade}, "Frame count must be between 1 and 100.",
                  2);
    }
    EXPECT_EQ(home.Info({"--insert", "red.ppm", "--fade", "to-color:100"})["frame_count"], 101);
}

}  // namespace kirto::test
