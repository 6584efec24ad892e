// Texts that are drawn on frames.
#include <algorithm>

#include "cli_images/image_home.h"

namespace kirto::test {

namespace {

constexpr int32 kWidth = 80;
constexpr int32 kHeight = 60;
constexpr uint32 kGrey = 0x808080;
constexpr uint32 kCaptionRed = 0xFF0000;
constexpr uint32 kCaptionBlue = 0x0000FF;

// Frames of one grey.
struct Captions : ImageHome {
    Captions() { Write("grey.ppm", Ppm(kWidth, kHeight, Colors(kWidth * kHeight, kGrey))); }

    std::vector<Colors> Drawn(int32 frames, const Arguments& edits) const {
        Arguments arguments;
        for (int32 i = 0; i < frames; ++i)
            arguments.insert(arguments.end(), {"--insert", "grey.ppm"});
        arguments.insert(arguments.end(), edits.begin(), edits.end());
        return Frames(arguments);
    }
    Colors DrawnOnOne(const std::string& value) const {
        const std::vector<Colors> frames = Drawn(1, {"--text", value});
        return frames.size() == 1 ? frames[0] : Colors();
    }
};

// Where a frame is not grey any more, its last row and column included.
struct Area {
    int32 left = kWidth;
    int32 top = kHeight;
    int32 right = -1;
    int32 bottom = -1;

    bool Empty() const { return right < 0; }
};

Area DrawnArea(const Colors& frame) {
    Area area;
    for (size_t i = 0; i < frame.size(); ++i) {
        if (frame[i] == kGrey) continue;
        const int32 x = static_cast<int32>(i) % kWidth;
        const int32 y = static_cast<int32>(i) / kWidth;
        area = {std::min(area.left, x), std::min(area.top, y), std::max(area.right, x),
                std::max(area.bottom, y)};
    }
    return area;
}

size_t CountOf(const Colors& frame, uint32 color) {
    return static_cast<size_t>(std::count(frame.begin(), frame.end(), color));
}

}  // namespace

TEST(KirtoCliImages, DrawsATextOnTheSelectedFramesBelowInTheMiddle) {
    const Captions home;

    const std::vector<Colors> frames =
        home.Drawn(3, {"--select", "1-2", "--text", "Hi", "--select", "0"});

    ASSERT_EQ(frames.size(), 3u);
    EXPECT_TRUE(DrawnArea(frames[0]).Empty());
    EXPECT_EQ(frames[1], frames[2]);
    const Area area = DrawnArea(frames[1]);
    EXPECT_GT(CountOf(frames[1], 0x000000), 0u);
    EXPECT_GE(area.top, kHeight / 2);
    EXPECT_LE(area.bottom, kHeight - kHeight / 20 - 1);
    EXPECT_NEAR(area.left + area.right, kWidth - 1, 3);
}

TEST(KirtoCliImages, DrawsATextInItsSizeAndColors) {
    const Captions home;

    const Colors small = home.DrawnOnOne("H,size=12,color=ff0000,outline=0,at=center");
    const Colors large = home.DrawnOnOne("H,size=40,color=ff0000,outline=0,at=center");
    const Colors outlined = home.DrawnOnOne("H,size=40,color=ff0000,outline=3:0000ff,at=center");

    const Area area = DrawnArea(large);
    EXPECT_GT(area.bottom - area.top, 2 * (DrawnArea(small).bottom - DrawnArea(small).top));
    EXPECT_GT(CountOf(large, kCaptionRed), 100u);
    EXPECT_EQ(CountOf(large, kCaptionBlue), 0u);
    EXPECT_GT(CountOf(outlined, kCaptionBlue), 100u);
    EXPECT_LT(DrawnArea(outlined).left, area.left);
}

TEST(KirtoCliImages, PutsATextWhereItIsToStand) {
    const Captions home;

    const Area corner = DrawnArea(home.DrawnOnOne("Hi,size=10,outline=0,at=top-left"));
    const Area placed = DrawnArea(home.DrawnOnOne("Hi,size=10,outline=0,x=40,y=-3"));
    const Area moved = DrawnArea(home.DrawnOnOne("Hi,size=10,outline=0,x=41,y=-3"));

    EXPECT_GE(corner.left, kHeight / 20);
    EXPECT_LT(corner.right, kWidth / 2);
    EXPECT_LT(corner.bottom, kHeight / 2);
    EXPECT_GE(placed.left, 40);
    EXPECT_EQ(moved.left, placed.left + 1);
    EXPECT_LT(placed.bottom, 10);
    EXPECT_TRUE(DrawnArea(home.DrawnOnOne("Hi,size=10,x=500,y=0")).Empty());
}

TEST(KirtoCliImages, LetsATextComeAndGo) {
    const Captions home;

    const std::vector<Colors> frames =
        home.Drawn(5, {"--select", "all", "--text", "H,size=40,color=ff0000,fade-in=2,fade-out=1"});

    ASSERT_EQ(frames.size(), 5u);
    EXPECT_EQ(CountOf(frames[0], kCaptionRed), 0u);
    EXPECT_FALSE(DrawnArea(frames[0]).Empty());
    EXPECT_NE(frames[0], frames[1]);
    EXPECT_GT(CountOf(frames[2], kCaptionRed), 100u);
    EXPECT_EQ(frames[2], frames[3]);
    EXPECT_EQ(CountOf(frames[4], kCaptionRed), 0u);
}

TEST(KirtoCliImages, UndoesATextExactly) {
    const Captions home;

    EXPECT_EQ(home.Drawn(2, {"--select", "all", "--text", "Hi", "--undo"}), home.Drawn(2, {}));
    EXPECT_EQ(home.Drawn(2, {"--select", "all", "--text", "Hi", "--undo", "--redo"}),
              home.Drawn(2, {"--select", "all", "--text", "Hi"}));
}

TEST(KirtoCliImages, KeepsCommasOfATextThatAreNotFollowedByItsItems) {
    const Captions home;

    const Area two = DrawnArea(home.DrawnOnOne("A,B,size=10,outline=0"));
    const Area one = DrawnArea(home.DrawnOnOne("A,size=10,outline=0"));
    const Area lines = DrawnArea(home.DrawnOnOne("A\nB,size=10,outline=0"));

    EXPECT_GT(two.right - two.left, one.right - one.left + 4);
    EXPECT_GT(lines.bottom - lines.top, two.bottom - two.top + 4);
    EXPECT_FALSE(DrawnArea(home.DrawnOnOne("size=10")).Empty());
}

TEST(KirtoCliImages, RefusesTextsThatCanNotBeUnderstood) {
    const Captions home;
    const auto refuse = [&home](const std::string& value, const std::string& line) {
        home.Fail({"--insert", "grey.ppm", "--text", value}, "--text: " + line, 2);
    };

    refuse("", "\"\": expected TEXT[,NAME=VALUE...].");
    refuse(",size=10", "\",size=10\": expected TEXT[,NAME=VALUE...].");
    refuse("Hi,size=3", "\"size=3\": expected size=4 to 1000, once.");
    refuse("Hi,size=1001", "\"size=1001\": expected size=4 to 1000, once.");
    refuse("Hi,size=", "\"size=\": expected size=4 to 1000, once.");
    refuse("Hi,size=9,size=9", "\"size=9\": expected size=4 to 1000, once.");
    refuse("Hi,color=red", "\"color=red\": expected color=RRGGBB, once.");
    refuse("Hi,outline=2:x", "\"outline=2:x\": expected outline=0 to 50 and [:RRGGBB], once.");
    refuse("Hi,outline=51", "\"outline=51\": expected outline=0 to 50 and [:RRGGBB], once.");
    refuse("Hi,at=above", "\"at=above\": expected at=an anchor such as top-left, once.");
    refuse("Hi,x=1.5", "\"x=1.5\": expected x=-65535 to 65535, once.");
    refuse("Hi,y=65536", "\"y=65536\": expected y=-65535 to 65535, once.");
    refuse("Hi,fade-in=-1", "\"fade-in=-1\": expected fade-in=0 to 65535, once.");
    refuse("Hi,font=", "\"font=\": expected font=a name, once.");
}

TEST(KirtoCliImages, DrawsNoTextWhereThereIsNothingToDraw) {
    const Captions home;

    home.Fail({"--text", "Hi"}, "There is no current frame.", 1);
    home.Fail({"--insert", "grey.ppm", "--width", "0", "--text", "Hi"},
              "The animation's width or height is 0.", 1);
    home.Fail({"--insert", "grey.ppm", "--text", " "},
              "--text: the text shows nothing, or is larger than 8192 pixels.", 1);
    home.Fail({"--insert", "grey.ppm", "--text", std::string(200, 'W') + ",size=1000"},
              "--text: the text shows nothing, or is larger than 8192 pixels.", 1);
}

}  // namespace kirto::test
