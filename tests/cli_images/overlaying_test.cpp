// Images that are drawn over frames.
#include "cli_images/image_home.h"

namespace kirto::test {

namespace {

constexpr uint32 kOverlayRed = 0xFF0000;
constexpr uint32 kOverlayBlue = 0x0000FF;

struct Overlays : ImageHome {
    Overlays() {
        Write("red.ppm", Ppm(3, 1, {kOverlayRed, kOverlayRed, kOverlayRed}));
        Write("dot.ppm", Ppm(1, 1, {kOverlayBlue}));
    }
};

}  // namespace

TEST(KirtoCliImages, DrawsAnImageOverTheSelectedFrames) {
    const Overlays home;
    const Arguments two = {"--insert", "red.ppm", "--insert", "red.ppm"};
    const auto frames = [&](Arguments edits) {
        edits.insert(edits.begin(), two.begin(), two.end());
        return home.Frames(edits);
    };
    const Colors red = {kOverlayRed, kOverlayRed, kOverlayRed};

    EXPECT_EQ(frames({"--overlay", "dot.ppm"}),
              (std::vector<Colors>{red, {kOverlayBlue, kOverlayRed, kOverlayRed}}));
    EXPECT_EQ(frames({"--select", "all", "--overlay", "dot.ppm@2,0"}),
              (std::vector<Colors>{{kOverlayRed, kOverlayRed, kOverlayBlue},
                                   {kOverlayRed, kOverlayRed, kOverlayBlue}}));
    EXPECT_EQ(frames({"--overlay", "dot.ppm@1,0:50%"}),
              (std::vector<Colors>{red, {kOverlayRed, 0x7F0080, kOverlayRed}}));
    EXPECT_EQ(frames({"--overlay", "dot.ppm@1,0", "--undo"}), (std::vector<Colors>{red, red}));
}

TEST(KirtoCliImages, TellsAtSignsInNamesFromPlacesOfOverlays) {
    const Overlays home;
    home.Write("a@1,0", Ppm(1, 1, {kOverlayBlue}));
    EXPECT_EQ(home.Frames({"--insert", "red.ppm", "--overlay", "a@1,0"}),
              (std::vector<Colors>{{kOverlayBlue, kOverlayRed, kOverlayRed}}));
}

TEST(KirtoCliImages, EndsAtAnOverlayThatCanNotBeRead) {
    const Overlays home;
    home.Fail({"--insert", "red.ppm", "--overlay", "missing.png@1,0"},
              "missing.png: This file can't be drawn because this file type is unsupported: "
              "missing.png",
              1);
}

}  // namespace kirto::test
